// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

namespace toolkit {

// Which setters raise an event from inside the assignment:
//
//   Control      Property    Event           Raised
//   ScrollBar    Value       Change          if the value changes
//   ScrollBar    Min, Max    Change          if the value has to move into the new range
//   TextBox      Text        Change          always
//   FileList     ListIndex   Click           always
//   FolderList   Path        Change          if the folder changes
//   DriveList    Drive       Change          if the drive changes
//   Form         Width,      Resize          if the size changes
//                Height
//
// No other setter raises anything; OptionButton::Value in particular clears the other buttons of
// its group in silence. GotFocus comes later, from the event loop.

/// Runs a handler: the one place that meets an uncaught run-time error, which ends the handler
/// without a word. No exception leaves it, so none unwinds through the host's event loop.
void RunHandler(const std::function<void()>& handler);

/// Sets what runs after each handler that no other handler has called, unless the program has
/// ended. It is met as a handler is; its own events do not call it again.
void AfterEvents(std::function<void()> action);

/// An event of a form or control: assign a handler to it.
template <typename... Args>
class Event {
 public:
  using Handler = std::function<void(Args...)>;

  Event& operator=(Handler handler) {
    handler_ = std::move(handler);
    return *this;
  }

  [[nodiscard]] bool Handled() const { return static_cast<bool>(handler_); }

  /// Calls a copy of the handler, so that a handler may replace or remove itself.
  void Raise(Args... args) const {
    if (!handler_) return;
    const Handler handler = handler_;
    RunHandler([&] { handler(args...); });
  }

 private:
  Handler handler_;
};

}  // namespace toolkit
