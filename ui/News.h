// SPDX-License-Identifier: MIT
#pragma once

#include <set>
#include <string>
#include <unordered_set>
#include <utility>

#include "base/Date.h"

namespace vell {

// What downloads brought that people should notice. Nothing is remembered beyond the session.
class News {
  public:
    // What comes from now on is another download's. One that brings no clipping leaves those of the one before it.
    void downloadEnded() { isFirst_ = true; }
    // By its full path.
    void clippingArrived(std::string path) {
        if (isFirst_) clippings_.clear();
        isFirst_ = false;
        clippings_.insert(std::move(path));
    }
    [[nodiscard]] bool isNew(const std::string& path) const { return clippings_.contains(path); }

    // A day has an alert, or another one than before, until somebody looks at it.
    void alertArrived(const Date& day) { alerts_.insert(day); }
    void alertSeen(const Date& day) { alerts_.erase(day); }
    [[nodiscard]] bool isAlertNew(const Date& day) const { return alerts_.contains(day); }

  private:
    std::unordered_set<std::string> clippings_;
    bool isFirst_ = true;  // the next one to arrive is the first of its download
    std::set<Date> alerts_;
};

}  // namespace vell
