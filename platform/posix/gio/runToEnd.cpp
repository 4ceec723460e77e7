// SPDX-License-Identifier: MIT
#include "platform/posix/gio/runToEnd.h"

#include "platform/posix/gio/GlibPointers.h"
#include "platform/posix/gio/GlibWait.h"

namespace vell {

namespace {

using BytesPtr = std::unique_ptr<GBytes, GlibFree<g_bytes_unref>>;

ObjectPtr<GSubprocess> started(const std::string& systemPath, const std::vector<std::string>& arguments) {
    const ObjectPtr<GSubprocessLauncher> launcher(g_subprocess_launcher_new(
        static_cast<GSubprocessFlags>(G_SUBPROCESS_FLAGS_STDOUT_PIPE | G_SUBPROCESS_FLAGS_STDERR_PIPE)));
    g_subprocess_launcher_setenv(launcher.get(), "LC_ALL", "C", TRUE);
    std::vector<const char*> argv{systemPath.c_str()};
    for (const std::string& argument : arguments)
        argv.push_back(argument.c_str());
    argv.push_back(nullptr);
    return ObjectPtr<GSubprocess>(g_subprocess_launcher_spawnv(launcher.get(), argv.data(), nullptr));
}

std::string textOf(GBytes* bytes) {
    gsize size = 0;
    const auto* text = static_cast<const char*>(g_bytes_get_data(bytes, &size));
    return size == 0 ? std::string() : std::string(text, size);
}

}  // namespace

std::optional<ProgramEnd> runToEnd(const std::string& systemPath, const std::vector<std::string>& arguments,
                                   std::chrono::milliseconds patience) {
    GlibWait wait(patience);
    const auto program = started(systemPath, arguments);
    if (!program) return std::nullopt;
    g_subprocess_communicate_async(program.get(), nullptr, wait.cancellable(), GlibWait::done, &wait);
    GBytes* output = nullptr;
    GBytes* errors = nullptr;
    const bool ended =
        g_subprocess_communicate_finish(program.get(), wait.result(), &output, &errors, nullptr) != FALSE;
    const BytesPtr ownOutput(output), ownErrors(errors);
    if (!ended) {
        g_subprocess_force_exit(program.get());
        return std::nullopt;
    }
    return ProgramEnd{g_subprocess_get_successful(program.get()) != FALSE, textOf(output), textOf(errors)};
}

}  // namespace vell
