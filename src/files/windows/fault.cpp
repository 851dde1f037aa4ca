#include "files/fault.h"

#include <algorithm>
#include <iterator>

#include "files/windows/calls.h"

namespace terramark::files {

const int NoSuchFile = ERROR_FILE_NOT_FOUND;
const int FileTooLarge = ERROR_FILE_TOO_LARGE;
const int InputOutputError = ERROR_IO_DEVICE;

namespace {

struct KnownError {
  int Number;
  const char* Text;
};

/// The errors that files give, since the system's own texts are in the user's language. An error
/// that other systems have too is described in the same words as there.
constexpr KnownError Known[] = {
    {ERROR_FILE_NOT_FOUND, "no such file or directory"},
    {ERROR_PATH_NOT_FOUND, "no such file or directory"},
    {ERROR_TOO_MANY_OPEN_FILES, "too many open files"},
    {ERROR_ACCESS_DENIED, "permission denied"},
    {ERROR_NOT_ENOUGH_MEMORY, "cannot allocate memory"},
    {ERROR_INVALID_DRIVE, "there is no such drive"},
    {ERROR_WRITE_PROTECT, "read-only file system"},
    {ERROR_NOT_READY, "the drive is not ready"},
    {ERROR_CRC, "input/output error"},
    {ERROR_SHARING_VIOLATION, "another program has the file open"},
    {ERROR_LOCK_VIOLATION, "another program has locked the file"},
    {ERROR_HANDLE_DISK_FULL, "no space left on device"},
    {ERROR_REM_NOT_LIST, "the network does not answer"},
    {ERROR_BAD_NETPATH, "the network does not find the computer"},
    {ERROR_NETWORK_BUSY, "the network is busy"},
    {ERROR_UNEXP_NET_ERR, "the network does not answer"},
    {ERROR_NETNAME_DELETED, "the network has lost the connection"},
    {ERROR_NETWORK_ACCESS_DENIED, "permission denied"},
    {ERROR_BAD_NET_NAME, "the network does not find the folder"},
    {ERROR_FILE_EXISTS, "file exists"},
    {ERROR_DISK_FULL, "no space left on device"},
    {ERROR_INVALID_NAME, "a file cannot have this name"},
    {ERROR_BAD_PATHNAME, "a file cannot have this name"},
    {ERROR_ALREADY_EXISTS, "file exists"},
    {ERROR_FILENAME_EXCED_RANGE, "file name too long"},
    {ERROR_FILE_TOO_LARGE, "file too large"},
    {ERROR_DIRECTORY, "not a directory"},
    {ERROR_IO_DEVICE, "input/output error"},
    {ERROR_UNABLE_TO_REMOVE_REPLACED, "the old file cannot be removed"},
    {ERROR_UNABLE_TO_MOVE_REPLACEMENT, "the old file cannot be replaced"},
    {ERROR_UNABLE_TO_MOVE_REPLACEMENT_2, "the old file cannot be replaced"},
    {ERROR_USER_MAPPED_FILE, "another program has the file open"},
    {ERROR_NO_SYSTEM_RESOURCES, "cannot allocate memory"},
    {DiskQuotaExceeded, "disk quota exceeded"},
    {ERROR_CANT_ACCESS_FILE, "permission denied"},
    {ERROR_FILE_READ_ONLY, "the file is read-only"},
};

}  // namespace

std::string ErrorText(int error) {
  const auto* const known = std::ranges::find(Known, error, &KnownError::Number);
  return known != std::end(Known) ? known->Text : "error " + std::to_string(error);
}

}  // namespace terramark::files
