// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vell {

// Tells whether a file is still the one that was looked at before: equal stamps mean unchanged content.
struct FileStamp {
    std::int64_t Size = 0;
    std::int64_t ModifiedNanoseconds = 0;
    std::uint64_t Identity = 0;  // inode or file index: a file that took the place of another has another one

    bool operator==(const FileStamp&) const = default;
};

// A file open for writing. It is closed, whatever happened, when the object goes.
class OutputFile {
  public:
    virtual ~OutputFile() = default;
    virtual void Write(std::string_view bytes) = 0;
    // Closes now and raises what a late write failed with. A second call does nothing.
    virtual void Close() = 0;
};

// A file that arrives under a name of its own and, once whole, takes the place of another. As long as the object lives
// no other writer can open it: none of this process, of another one, or of another machine that shares the folder.
// What was written stays, also when the program is killed, for a later writer to go on with; a part that holds nothing
// goes with its object. Nothing is collected: what Write has taken, Length counts.
class PartFile : public OutputFile {
  public:
    [[nodiscard]] virtual std::int64_t Length() const = 0;
    // The first bytes, at most that many.
    [[nodiscard]] virtual std::string Beginning(std::size_t most) const = 0;
    // Goes on at `offset` (0 to the length) and cuts off what lies behind it. Until then writing goes on at the end.
    virtual void StartAt(std::int64_t offset) = 0;
    // A call that raises has left the length as it was and may be made again.
    void Write(std::string_view bytes) override = 0;
    // Becomes what the file of that name in the same folder is, and that name is free; what the part held is gone.
    virtual void Adopt(std::string_view path) = 0;
    // Closes, and becomes the file of that name in the same folder. An older file of that name gives way in the same
    // step, as does a link; its permissions are kept, and one that must not be written is left as it is.
    virtual void MoveTo(std::string_view path) = 0;
    // Closes, and removes what has come.
    virtual void Discard() = 0;
};

enum class Durability {
    Rename,   // survives the end of the program
    Flushed,  // survives a power cut too; costs a wait for the disk
};

// Paths are texts in code page 1253 with backslashes; an implementation maps them to the system's form. A path whose
// name differs only in case from one on disk means that one. Failures raise RunTimeError with a number of
// base/errors.h, unless the return type says otherwise; the path stands in the description.
class Files {
  public:
    virtual ~Files() = default;

    // False only when there is no such file or folder: one that cannot be looked at is there all the same, and tells
    // why when it is used.
    [[nodiscard]] virtual bool PathExists(std::string_view path) const = 0;
    // Length in bytes; nothing when there is no such file.
    [[nodiscard]] virtual std::optional<std::int64_t> FileSize(std::string_view path) const = 0;
    [[nodiscard]] virtual std::optional<FileStamp> Stamp(std::string_view path) const = 0;

    struct Entry {
        std::string Name;       // without the folder
        std::int64_t Size = 0;  // 0 for folders
    };
    enum class Kind { Files, Folders };
    // What a folder holds of one kind, in name order without regard to case; "." and ".." are never among it. The
    // pattern knows "*" and "?", without regard to case; "*.*" means everything. Parts (see OpenPart) are listed by
    // patterns alone that begin with a dot, too. A missing folder holds nothing.
    [[nodiscard]] virtual std::vector<Entry> Enumerate(std::string_view folder, std::string_view pattern,
                                                       Kind kind) const = 0;

    [[nodiscard]] virtual std::string ReadFile(std::string_view path) const = 0;
    // The bytes from `offset` on, `most` of them; fewer only where the file ends.
    [[nodiscard]] virtual std::string ReadPart(std::string_view path, std::int64_t offset, std::size_t most) const = 0;
    // Replaces or makes the file; what lies under its name is the old content or the new, never a part.
    virtual void WriteWhole(std::string_view path, std::string_view bytes, Durability durability) = 0;
    // Makes the file when it is missing.
    virtual void Append(std::string_view path, std::string_view bytes) = 0;
    // Opens a part, and makes it when it is missing; null when another writer has it. Its name begins with a dot and
    // ends with ".part"; a file of another name is written in place. Parts that nobody has written for a day are
    // removed from a folder when it is first written to.
    [[nodiscard]] virtual std::unique_ptr<PartFile> OpenPart(std::string_view path) = 0;
    // For who reads a file, changes what it read and replaces the file by it: holds off everybody else who asks for the
    // file's lock, in whatever process or on whatever machine, while what is returned lives, which is never null.
    // Nothing is to be done with it. Raises when another one has not done its work for seconds.
    [[nodiscard]] virtual std::unique_ptr<PartFile> Lock(std::string_view path) = 0;
    // Waits until the disk has what was written in that folder, so that a power cut cannot take it any more.
    virtual void Flush(std::string_view folder) = 0;
    // Makes an empty file that only its owner may read, or leaves an existing one as it is.
    virtual void MakePrivateFile(std::string_view path) = 0;

    virtual void DeleteFile(std::string_view path) = 0;
    // One level only.
    virtual void MakeFolder(std::string_view path) = 0;
    // The folder must be empty but for what Enumerate shows nobody, which goes with it: parts that are not being
    // written, files whose names the code page cannot say, links that lead nowhere.
    virtual void RemoveFolder(std::string_view path) = 0;

    // For what people take elsewhere: paths in the system's own form, UTF-8. A folder of theirs may have a name that
    // the code page cannot say.

    // Of the file that is meant by a path.
    [[nodiscard]] virtual std::string SystemPath(std::string_view path) const = 0;
    // Is there anything of that name?
    [[nodiscard]] virtual bool IsTaken(const std::string& systemPath) const = 0;
    // Copies a file whole: what lies under the new name is what was there or the copy, never a part. Nothing else in
    // that folder is touched.
    virtual void CopyOut(std::string_view path, const std::string& systemPath) = 0;

    // Free bytes for the calling user on the drive that holds `path`, which need not exist itself; nothing when the
    // system cannot tell.
    [[nodiscard]] virtual std::optional<std::uint64_t> FreeBytes(std::string_view path) const = 0;
};

}  // namespace vell
