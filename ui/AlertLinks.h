// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vell {

class ClippingOpening;
class MessageBoxes;
class Translations;

// Where in a text an address stands that can be opened: of the web, or to write to. Counted in characters from 0.
struct AddressPlace {
    std::size_t Begin = 0;
    std::size_t Length = 0;

    bool operator==(const AddressPlace&) const = default;
    [[nodiscard]] bool holds(std::size_t at) const { return at >= Begin && at < Begin + Length; }
};
// Only "http://", "https://" and "mailto:" begin one, and it has no other letters than those of ASCII: one that only
// looks like a Latin letter would lead elsewhere. The sign that ends a sentence is no part of it.
[[nodiscard]] std::vector<AddressPlace> addressesIn(std::string_view text);

// The addresses of an alert come from outside: each is shown in full before it is opened.
class AlertLinks {
  public:
    AlertLinks(ClippingOpening& opening, MessageBoxes& boxes, const Translations& words)
        : opening_(opening), boxes_(boxes), words_(words) {}

    void open(const std::string& address);

  private:
    ClippingOpening& opening_;
    MessageBoxes& boxes_;
    const Translations& words_;
};

}  // namespace vell
