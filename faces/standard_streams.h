#pragma once

#include <string>

namespace zelvo {

// The exit statuses of our programs.
constexpr int success = 0;
constexpr int failure = 1;    ///< something could not be read, written or opened
constexpr int wrongCall = 2;  ///< an option or argument that the program does not have

/// To be called first in a program. Afterwards a standard stream that the caller closed fails at
/// its first use and lends its number to no file or connection that is opened later; and writing to
/// a pipe whose reader left is an error like any other, not the end of the process.
void GuardStandardStreams();

/// Says on standard error, in one line, what went wrong. Returns `status`.
int Complain(const std::string& program, const std::string& what, int status);

/// Writes a text to standard output, for --help and the like. Returns the exit status.
int PrintAnswer(const std::string& program, const std::string& text);

/// "FILE cannot be read: REASON" and its like; the reason is that of the last call to the system.
std::string WithReason(const std::string& what, int error);

}  // namespace zelvo
