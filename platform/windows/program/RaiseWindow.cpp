// SPDX-License-Identifier: MIT
#include "platform/windows/program/RaiseWindow.h"

#include <utility>

namespace vell {

namespace {

constexpr const wchar_t* className = L"VellRaise";
constexpr UINT askedToRaise = WM_APP + 1;

LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM first, LPARAM second) {
    if (message != askedToRaise) return DefWindowProcW(window, message, first, second);
    if (auto* raise = reinterpret_cast<std::function<void()>*>(GetWindowLongPtrW(window, GWLP_USERDATA))) (*raise)();
    return 0;
}

}  // namespace

RaiseWindow::RaiseWindow(const std::wstring& name, std::function<void()> raise)
    : raise_(std::make_unique<std::function<void()>>(std::move(raise))) {
    WNDCLASSW kind{};
    kind.lpfnWndProc = onMessage;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.lpszClassName = className;
    RegisterClassW(&kind);  // a second time it is there already
    const HWND window =
        CreateWindowExW(0, className, name.c_str(), 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, kind.hInstance, nullptr);
    if (window != nullptr) SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(raise_.get()));
    window_ = window;
}

RaiseWindow::~RaiseWindow() {
    if (window_ != nullptr) DestroyWindow(static_cast<HWND>(window_));
}

void RaiseWindow::ask(const std::wstring& name) {
    const HWND window = FindWindowExW(HWND_MESSAGE, nullptr, className, name.c_str());
    if (window == nullptr) return;
    // Who was started last by the user may come to the front; that right is passed on.
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    AllowSetForegroundWindow(owner);
    PostMessageW(window, askedToRaise, 0, 0);
}

}  // namespace vell
