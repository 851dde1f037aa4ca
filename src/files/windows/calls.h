// Calls of Windows: handles, and the reasons of failures.
#pragma once

#include <windows.h>

#include "files/descriptor.h"

namespace terramark::files {

/// An error code that the headers lack.
constexpr int DiskQuotaExceeded = 1295;

/// 0, or the error code of a call that has failed.
inline int ErrorOf(BOOL succeeded) {
  return succeeded != FALSE ? 0 : static_cast<int>(::GetLastError());
}

/// The file system does not know the request.
inline bool IsUnknownRequest(int error) {
  return error == ERROR_NOT_SUPPORTED || error == ERROR_INVALID_FUNCTION ||
         error == ERROR_INVALID_PARAMETER || error == ERROR_CALL_NOT_IMPLEMENTED;
}

/// A file's number as the system's calls take it. Of a closed one it is INVALID_HANDLE_VALUE.
inline HANDLE Native(FileNumber file) {
  return reinterpret_cast<HANDLE>(file);
}

/// Takes over an open handle, or INVALID_HANDLE_VALUE.
inline Descriptor Owned(HANDLE handle) {
  return Descriptor(reinterpret_cast<FileNumber>(handle));
}

}  // namespace terramark::files
