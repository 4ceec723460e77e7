// SPDX-License-Identifier: MIT
#pragma once
#include "platform/Shell.h"
namespace vell { class PosixShell : public Shell { public: int Open(std::string_view, std::string_view) override { return 2; } }; }
