// SPDX-License-Identifier: MIT
#include "platform/posix/gio/applications.h"

#include <algorithm>
#include <array>
#include <memory>

#include <gio/gio.h>

#include "platform/Shell.h"
#include "platform/common/documents.h"

namespace vell {

namespace {

template <class Thing>
struct Unref {
    void operator()(Thing* thing) const { g_object_unref(thing); }
};
template <class Thing>
using Owned = std::unique_ptr<Thing, Unref<Thing>>;

struct FreeError {
    void operator()(GError* error) const { g_error_free(error); }
};
struct FreeList {
    void operator()(GList* list) const { g_list_free(list); }
};
struct FreeText {
    void operator()(char* text) const { g_free(text); }
};

// Scripts and programs are all kinds of application/x-executable in the shared MIME database, but for these.
constexpr std::array<const char*, 8> runnableTypes{
    "application/x-executable",        "application/x-sharedlib",   "application/x-desktop",
    "application/x-ms-dos-executable", "application/x-msdownload",  "application/vnd.microsoft.portable-executable",
    "application/java-archive",        "application/x-java-archive"};

// The execute bit says nothing: it comes with every file of some drives, and an application opens the file, never the
// system.
bool isRunnable(const std::string& path, const char* type) {
    if (g_content_type_is_a(type, "inode/directory")) return false;
    if (hasRunnableEnding(path)) return true;
    return std::ranges::any_of(runnableTypes, [&](const char* one) { return g_content_type_is_a(type, one) != FALSE; });
}

// `launch` is called with the place for its error.
template <class Launch>
int started(Launch launch) {
    GError* failure = nullptr;
    const bool isStarted = launch(&failure) != FALSE;
    const std::unique_ptr<GError, FreeError> owned(failure);
    // The application is named, but what its entry names cannot be started.
    return isStarted ? shell_code::Started : shell_code::AssociationIncomplete;
}

}  // namespace

int startForDocument(const std::string& systemPath) {
    const Owned<GFile> file(g_file_new_for_path(systemPath.c_str()));
    const Owned<GFileInfo> info(g_file_query_info(file.get(), G_FILE_ATTRIBUTE_STANDARD_CONTENT_TYPE,
                                                  G_FILE_QUERY_INFO_NONE, nullptr, nullptr));
    const char* type = info ? g_file_info_get_content_type(info.get()) : nullptr;
    if (type == nullptr) return shell_code::NoAssociation;
    if (isRunnable(systemPath, type)) return shell_code::AccessDenied;
    const Owned<GAppInfo> application(g_app_info_get_default_for_type(type, FALSE));
    if (!application) return shell_code::NoAssociation;
    const std::unique_ptr<GList, FreeList> files(g_list_append(nullptr, file.get()));
    return started([&](GError** error) { return g_app_info_launch(application.get(), files.get(), nullptr, error); });
}

int startForAddress(const std::string& address) {
    const std::unique_ptr<char, FreeText> scheme(g_uri_parse_scheme(address.c_str()));
    const Owned<GAppInfo> application(scheme ? g_app_info_get_default_for_uri_scheme(scheme.get()) : nullptr);
    if (!application) return shell_code::NoAssociation;
    std::string text = address;
    const std::unique_ptr<GList, FreeList> addresses(g_list_append(nullptr, text.data()));
    return started(
        [&](GError** error) { return g_app_info_launch_uris(application.get(), addresses.get(), nullptr, error); });
}

}  // namespace vell
