// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/errors.h"
#include "platform/IniFile.h"

namespace vell {

// All access to files in INI syntax. The Vell pair works on the settings file, the other pair on any file. Nothing
// fails towards the caller: a failure is logged under the function's name and the result is false.
class modIni {
  public:
    modIni(IniFile& ini, ErrorLog& log);

    static constexpr std::string_view settingsFileName = "vell.ini";
    // Where the settings file lies, backslash at the end. To be told before the Vell pair is used.
    void setAppDir(std::string appDir);
    [[nodiscard]] std::string settingsFile() const;

    // True when the key was found; otherwise the value becomes empty. A value is cut to 249 bytes, and the value
    // "#NF#" cannot be told from a missing key.
    bool VellIniReadString(std::string_view section, std::string_view key, std::string& value) const;
    bool IniReadString(std::string_view file, std::string_view section, std::string_view key, std::string& value) const;
    // The same into a number, which stays as it is (result false, and a log entry) when the text is none: so with a
    // key that is missing.
    bool VellIniReadString(std::string_view section, std::string_view key, std::int16_t& value) const;

    // Runs `reads`, in which the settings file reads as it was at one moment. False, and nothing has run, when it is
    // there and cannot be read.
    bool readAtOnce(const std::function<void()>& reads) const;
    // The same for a file of that path.
    bool readAtOnce(std::string_view file, const std::function<void()>& reads) const;
    [[nodiscard]] bool isReadable() const {
        return readAtOnce([] {});
    }

    // True when the file was written.
    bool VellIniWriteString(std::string_view section, std::string_view key, std::string_view value);
    bool IniWriteString(std::string_view file, std::string_view section, std::string_view key, std::string_view value);
    // Several changes of one file in one step.
    bool IniWriteStrings(std::string_view file, const std::vector<IniEdit>& edits);
    // Several changes of the settings file in one step. No other writer comes between the call of `edits`, which may
    // read the file, and the replacement.
    bool VellIniWriteStrings(const std::function<std::vector<IniEdit>()>& edits);

  private:
    [[nodiscard]] bool read(std::string_view file, std::string_view section, std::string_view key,
                            std::string& value) const;

    IniFile& ini_;
    ErrorLog& log_;
    std::string appDir_;
};

}  // namespace vell
