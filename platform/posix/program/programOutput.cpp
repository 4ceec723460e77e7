// SPDX-License-Identifier: MIT
#include "platform/posix/program/programOutput.h"

#include "platform/posix/program/GlibPointers.h"
#include "platform/posix/program/GlibWait.h"

namespace vell {

namespace {

using BytesPtr = std::unique_ptr<GBytes, GlibFree<g_bytes_unref>>;

ObjectPtr<GSubprocess> started(const std::string& systemPath, const std::vector<std::string>& arguments) {
    const ObjectPtr<GSubprocessLauncher> launcher(g_subprocess_launcher_new(
        static_cast<GSubprocessFlags>(G_SUBPROCESS_FLAGS_STDOUT_PIPE | G_SUBPROCESS_FLAGS_STDERR_SILENCE)));
    g_subprocess_launcher_setenv(launcher.get(), "LC_ALL", "C", TRUE);
    std::vector<const char*> argv{systemPath.c_str()};
    for (const std::string& argument : arguments)
        argv.push_back(argument.c_str());
    argv.push_back(nullptr);
    return ObjectPtr<GSubprocess>(g_subprocess_launcher_spawnv(launcher.get(), argv.data(), nullptr));
}

}  // namespace

std::optional<std::string> programOutput(const std::string& systemPath, const std::vector<std::string>& arguments,
                                         std::chrono::milliseconds patience) {
    GlibWait wait(patience);
    const auto program = started(systemPath, arguments);
    if (!program) return std::nullopt;
    g_subprocess_communicate_async(program.get(), nullptr, wait.cancellable(), GlibWait::done, &wait);
    GBytes* output = nullptr;
    const bool ended =
        g_subprocess_communicate_finish(program.get(), wait.result(), &output, nullptr, nullptr) != FALSE;
    const BytesPtr owned(output);
    if (!ended) {
        g_subprocess_force_exit(program.get());
        return std::nullopt;
    }
    gsize size = 0;
    const auto* bytes = static_cast<const char*>(g_bytes_get_data(output, &size));
    return size == 0 ? std::string() : std::string(bytes, size);
}

}  // namespace vell
