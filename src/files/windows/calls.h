// Calls of Windows: handles, and the reasons of failures.
#pragma once

#include <windows.h>

#include "files/descriptor.h"

namespace terramark::files {

/// What other programs may do meanwhile with a file that is opened: anything.
constexpr DWORD SharedWithAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// An error code that the headers lack.
constexpr int DiskQuotaExceeded = 1295;

/// The error code of the call that has just failed.
inline int LastError() {
  return static_cast<int>(::GetLastError());
}

/// 0, or the error code of a call that has failed.
inline int ErrorOf(BOOL succeeded) {
  return succeeded != FALSE ? 0 : LastError();
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
