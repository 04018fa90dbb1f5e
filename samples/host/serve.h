#pragma once

#include <string>

namespace sample {

/// Is the running error-report service of every program that uses the library, those in script included, until the
/// console is closed or Ctrl+C is pressed. Each program has a tree of procedures of its own.
/// @param file where the tree of procedures and the errors go; empty: to the console
/// @param command a program with its arguments that is run meanwhile; its end is the end of the service. Empty: none
/// @return the exit status of that program, else 0
/// @throws ComError when the service or the program cannot be started
int serve(const std::wstring& file, const std::wstring& command);

}  // namespace sample
