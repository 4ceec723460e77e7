// SPDX-License-Identifier: MIT
#include "demo/http/ListAnswer.h"

#include <algorithm>

#include "base/text.h"
#include "demo/http/FormFields.h"

namespace vell::demo {

namespace {

// A cell as a field of a record: what would end the field or the record is taken out, and "." stands for nothing. One
// "|" at the end stays: in "ECONOMY|" it says that the list of categories goes on with an empty one.
std::string fieldText(std::string text) {
    for (std::size_t at = Lower(text).find("<br>"); at != std::string::npos; at = Lower(text).find("<br>"))
        text.replace(at, 4, 1, ' ');
    while (text.find("||") != std::string::npos)
        text = Replace(text, "||", "|");
    if (text.empty()) text += '.';
    return text;
}

std::string record(const Clipping& clipping) {
    std::string line = clipping.File;
    for (const std::string& cell :
         {clipping.Newspaper, clipping.Title, clipping.Category, clipping.Type, clipping.Change})
        line.append("||").append(fieldText(cell));
    line += "||-";
    for (auto size : clipping.Sizes)
        line.append("||").append(std::to_string(size));
    return line;
}

std::optional<Date> dayOf(const FormFields& form, std::string_view number) {
    const auto part = [&](std::string_view name) { return form.unescaped(std::string(name).append(number)); };
    return Date::fromFolderName(part("dd") + part("mm") + part("yyyy"));
}

bool isKnownUser(const ClippingsTree& tree, const FormFields& form) {
    return tree.isUser(form.sent("username"), form.sent("password")) ||
           tree.isUser(form.unescaped("username"), form.unescaped("password"));
}

std::vector<Clipping> clippingsBetween(const ClippingsTree& tree, const Date& first, const Date& last) {
    std::vector<Clipping> clippings;
    for (const Date& day : tree.days())
        if (first <= day && day <= last)
            for (auto& clipping : tree.table(day).Clippings)
                clippings.push_back(std::move(clipping));
    // Clients merge the list with an older one name by name, in byte order.
    std::sort(clippings.begin(), clippings.end(), [](const Clipping& a, const Clipping& b) { return a.File < b.File; });
    return clippings;
}

}  // namespace

std::optional<std::string> listAnswer(const ClippingsTree& tree, std::string_view form) {
    const FormFields fields(form,
                            {"username", "password", "dd1", "mm1", "yyyy1", "dd2", "mm2", "yyyy2", "vellVersion"});
    if (!isKnownUser(tree, fields)) return "ERROR 1001 The user name and the password were refused.";
    const auto first = dayOf(fields, "1");
    const auto last = dayOf(fields, "2");
    if (!first || !last) return std::nullopt;
    std::string answer;
    for (const auto& clipping : clippingsBetween(tree, *first, *last))
        answer.append(answer.empty() ? "" : "<br>").append(record(clipping));
    if (answer.empty()) return "ERROR 1002 There is nothing for the day.";
    return answer;
}

std::optional<std::string> alertAnswer(const ClippingsTree& tree, std::string_view form) {
    const auto day = dayOf(FormFields(form, {"dd", "mm", "yyyy"}), "");
    if (!day) return std::nullopt;
    return tree.alert(*day);
}

}  // namespace vell::demo
