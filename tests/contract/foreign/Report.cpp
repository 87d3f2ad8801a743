#include "Report.h"

#include "Kernel32.h"

Place place = {kNoSlot, 0};

namespace {

struct Meaning {
  Failure failure;
  const char* text;
};

constexpr Meaning kMeanings[] = {
#define FOREIGN_FAILURE(code, name, meaning) {name, meaning},
    FOREIGN_FAILURES(FOREIGN_FAILURE)
#undef FOREIGN_FAILURE
};

const char* meaningOf(Failure failure) {
  for (const Meaning& meaning : kMeanings) {
    if (meaning.failure == failure) return meaning.text;
  }
  return "unknown";
}

long __stdcall onCrash(ExceptionPointers*) {
  fail(kCrash);
}

}  // namespace

void print(const char* text) {
  unsigned size = 0;
  while (text[size] != '\0') ++size;
  unsigned done = 0;
  WriteFile(GetStdHandle(kStandardOutput), text, size, &done, nullptr);
}

void print(unsigned number) {
  char digits[11];
  char* first = digits + 10;
  *first = '\0';
  do {
    *--first = static_cast<char>('0' + number % 10);
    number /= 10;
  } while (number != 0);
  print(first);
}

void fail(Failure failure) {
  print("failure ");
  print(static_cast<unsigned>(failure));
  print(": ");
  print(meaningOf(failure));
  if (place.slot != kNoSlot) {
    print(" (last call: slot ");
    print(place.slot);
    print(")");
  }
  print(", with the stack at ");
  print(place.alignment);
  print(" modulo 16\n");
  ExitProcess(failure);
}

void reportCrashes() {
  SetUnhandledExceptionFilter(onCrash);
}

void keepAwayFromThePlayersFiles() {
  const Module ntdll = GetModuleHandleW(L"ntdll.dll");
  require(GetProcAddress(ntdll, "wine_get_version") != nullptr, kNotWine);
  // For Wine, the profile folder is the one of this name below C:\users.
  SetEnvironmentVariableW(L"WINEUSERNAME", L"no-such-player");
}
