// SPDX-License-Identifier: MIT
#include "config/modIni.h"

#include <algorithm>
#include <utility>

#include "base/text.h"

namespace vell {

namespace {
constexpr std::string_view notFound = "#NF#";
constexpr std::size_t bufferSize = 250;

std::vector<IniEdit> one(std::string_view section, std::string_view key, std::string_view value) {
    return {{std::string(section), std::string(key), std::string(value)}};
}
}  // namespace

modIni::modIni(IniFile& ini, ErrorLog& log) : ini_(ini), log_(log) {}

void modIni::setAppDir(std::string appDir) {
    appDir_ = std::move(appDir);
}

std::string modIni::settingsFile() const {
    return appDir_ + std::string(settingsFileName);
}

bool modIni::read(std::string_view file, std::string_view section, std::string_view key, std::string& value) const {
    std::string text = ini_.ReadString(file, section, key, notFound, bufferSize);
    std::erase(text, '\0');
    const bool found = text != notFound;
    value = found ? std::move(text) : std::string{};
    return found;
}

bool modIni::VellIniReadString(std::string_view section, std::string_view key, std::string& value) const {
    return trap(log_, "VellIniReadString()", false, [&] { return read(settingsFile(), section, key, value); });
}

bool modIni::IniReadString(std::string_view file, std::string_view section, std::string_view key,
                           std::string& value) const {
    return trap(log_, "IniReadString()", false, [&] { return read(file, section, key, value); });
}

bool modIni::VellIniReadString(std::string_view section, std::string_view key, std::int16_t& value) const {
    return trap(log_, "VellIniReadString()", false, [&] {
        std::string text;
        const bool found = read(settingsFile(), section, key, text);
        value = CInt16(std::string_view(text));
        return found;
    });
}

bool modIni::readAtOnce(const std::function<void()>& reads) const {
    return readAtOnce(settingsFile(), reads);
}

bool modIni::readAtOnce(std::string_view file, const std::function<void()>& reads) const {
    return trap(log_, "VellIniReadString()", false, [&] {
        ini_.ReadAtOnce(file, reads);
        return true;
    });
}

bool modIni::VellIniWriteString(std::string_view section, std::string_view key, std::string_view value) {
    return VellIniWriteStrings([&] { return one(section, key, value); });
}

bool modIni::IniWriteString(std::string_view file, std::string_view section, std::string_view key,
                            std::string_view value) {
    return IniWriteStrings(file, one(section, key, value));
}

bool modIni::IniWriteStrings(std::string_view file, const std::vector<IniEdit>& edits) {
    return trap(log_, "IniWriteString()", false, [&] {
        ini_.Update(file, [&] { return edits; });
        return true;
    });
}

bool modIni::VellIniWriteStrings(const std::function<std::vector<IniEdit>()>& edits) {
    return trap(log_, "VellIniWriteString()", false, [&] {
        ini_.Update(settingsFile(), edits);
        return true;
    });
}

}  // namespace vell
