#pragma once

/** Exit codes of the program. */
namespace FExitCode {

constexpr int done = 0;
constexpr int failed = 1;     //!< the work failed: a script error, a failed run, or a check that found an error
constexpr int wrongCall = 2;  //!< the command line is wrong
constexpr int fileError = 3;  //!< a file can't be read or written

}  // namespace FExitCode
