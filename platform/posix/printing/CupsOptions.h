// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <map>
#include <string>
#include <string_view>

namespace vell {

// How a print queue of CUPS is set up, as lpoptions(1) tells it. What has no value is taken for not told.
class CupsOptions {
  public:
    // `options` is what "lpoptions -p NAME" says, all in one line: key=value key='a value'. `driver` is the same
    // with "-l": a line for each of the driver's own, its choice with an asterisk: PageSize/Media Size: *A4 Letter.
    // The queue's options go before those of the driver.
    CupsOptions(std::string_view options, std::string_view driver);

    // The values of PrinterSettings.
    [[nodiscard]] int paperSize() const;
    [[nodiscard]] int orientation() const;
    [[nodiscard]] int printQuality() const;
    [[nodiscard]] int zoom() const;

  private:
    void readOptions(std::string_view line);
    void readDriver(std::string_view lines);
    // The value, in small letters, of the first of the keys that has one; empty when none has.
    [[nodiscard]] std::string valueOf(std::initializer_list<const char*> keys) const;

    std::map<std::string, std::string, std::less<>> values_;
};

}  // namespace vell
