#include "files/commandline.h"

#include <windows.h>

#include <cstdio>

#include "files/windows/unicode.h"

// A function of the C library. The headers declare it only for the library's own start-up code.
extern "C" __declspec(dllimport) int __cdecl __wgetmainargs(int* count, wchar_t*** words,
                                                            wchar_t*** environment,
                                                            int expandPatterns, void* startInfo);

namespace terramark::files {

std::vector<std::string> Arguments(int /*argc*/, char** /*argv*/) {
  // What main is given is in the code page of the system, which lacks most characters.
  int count = 0;
  wchar_t** words = nullptr;
  wchar_t** environment = nullptr;
  int newMode = 0;
  if (__wgetmainargs(&count, &words, &environment, 1, &newMode) != 0) return {};
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i) arguments.push_back(FromUtf16(words[i]));
  return arguments;
}

bool Print(std::string_view text) {
  const HANDLE output = ::GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  if (::GetConsoleMode(output, &mode) != FALSE) {
    // A console would take bytes for characters of its own code page.
    const std::wstring units = ToUtf16(text);
    DWORD written = 0;
    return ::WriteConsoleW(output, units.data(), static_cast<DWORD>(units.size()), &written,
                           nullptr) != FALSE &&
           written == units.size();
  }
  const bool taken = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  return std::fflush(stdout) == 0 && taken;
}

}  // namespace terramark::files
