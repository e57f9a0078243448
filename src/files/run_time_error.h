// SPDX-License-Identifier: MIT
#pragma once

#include <new>
#include <stdexcept>
#include <string>

namespace files {

/// Numbers of the run-time errors that the layer raises.
namespace error {
inline constexpr int invalid_call = 5;
inline constexpr int overflow = 6;
inline constexpr int out_of_memory = 7;
inline constexpr int subscript_out_of_range = 9;
inline constexpr int out_of_string_space = 14;
inline constexpr int file_not_found = 53;
inline constexpr int device_io = 57;
inline constexpr int disk_full = 61;
inline constexpr int input_past_end = 62;
inline constexpr int device_unavailable = 68;
inline constexpr int permission_denied = 70;
inline constexpr int path_file_access = 75;
inline constexpr int path_not_found = 76;
inline constexpr int no_application_answered = 282;
inline constexpr int link_refused = 285;
inline constexpr int invalid_file_format = 321;
inline constexpr int no_such_control = 340;
inline constexpr int invalid_property_value = 380;
inline constexpr int invalid_picture = 481;
}  // namespace error

/// A failed operation of the layer or of the crossword state.
class RuntimeError : public std::runtime_error {
 public:
  explicit RuntimeError(int number)
      : std::runtime_error("run-time error " + std::to_string(number)), number_(number) {}

  /// One of the numbers of the namespace error.
  [[nodiscard]] int number() const { return number_; }

 private:
  int number_;
};

/// Runs exactly one statement and passes over its failure.
/// Returns 0, or the number of the run-time error that was passed over. Memory that runs out is
/// one.
template <typename Statement>
int pass_over(Statement statement) {
  try {
    statement();
  } catch (const RuntimeError& failure) {
    return failure.number();
  } catch (const std::bad_alloc&) {
    return error::out_of_memory;
  }
  return 0;
}

}  // namespace files
