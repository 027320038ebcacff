#pragma once

#include <exception>
#include <stdexcept>
#include <string>

namespace velmar {

/// The run-time errors that the procedures sort their failures by. The values are the numbers that
/// the manager reads in the messages.
enum class ErrorNumber : int {
  kInvalidCall = 5,         ///< a function was given an argument outside its domain
  kOverflow = 6,            ///< a number does not fit its type
  kSubscript = 9,           ///< a table was given more elements than it holds, or a name is unknown
  kDivisionByZero = 11,     ///< division by zero
  kTypeMismatch = 13,       ///< a text is not a number where one is needed
  kBadFileName = 52,        ///< a name that no file can have
  kFileNotFound = 53,       ///< the folder is there, the file is not
  kDeviceError = 57,        ///< reading or writing failed in the device
  kDiskFull = 61,           ///< no room is left on the disk
  kPastEnd = 62,            ///< a read went past the end of the file
  kTooManyFiles = 67,       ///< no more files can be opened
  kPermissionDenied = 70,   ///< the file is locked by somebody else
  kPathFileAccess = 75,     ///< the path may not be read or written, or is of the other kind
  kPathNotFound = 76,       ///< a folder on the path does not exist
  kObjectNotSet = 91,       ///< an object of the workbook application that is not there
  kNoApplication = 429,     ///< an application to be driven is not installed
  kServerGone = 462,        ///< the workbook application was closed during its work
  kWorkbookRefused = 1004,  ///< the workbook application refused an operation
  kLibraryMissing = -2147319779,  ///< a library of the workbook application is not registered
};

/// A step failed. Caught in one place of each procedure, which sorts by number.
class RunTimeError : public std::runtime_error {
 public:
  /// `about` names the file or value at fault, for the developer's eyes.
  explicit RunTimeError(ErrorNumber number, const std::string& about = "")
      : std::runtime_error("run-time error " + std::to_string(static_cast<int>(number)) +
                           (about.empty() ? "" : ": " + about)),
        number_(number) {}

  ErrorNumber number() const { return number_; }

 private:
  ErrorNumber number_;
};

/// The program ends at once: thrown behind a fatal message, and by the ways out. Caught by the
/// front end alone.
class ProgramEnd : public std::exception {
 public:
  const char* what() const noexcept override { return "the program has ended"; }
};

}  // namespace velmar
