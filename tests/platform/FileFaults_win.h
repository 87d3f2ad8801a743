#pragma once

#include <windows.h>

#include <functional>

#include "tests/platform/FileFaults.h"

namespace brennet::test {

// The ways in which ReplaceFileW fails half-way, and what keeps that from being put right.
struct HalfwayFaults {
  DWORD replacing = 0;  // its error; ERROR_UNABLE_TO_MOVE_REPLACEMENT_2 moves the old file away
  bool movingTheNew = false;  // the temporary file cannot be moved to where the old one was
  bool moving = false;        // no file can be moved
};

extern HalfwayFaults halfwayFaults;

// Calls that fail a few times and then work, as while another program looks at the file.
struct PassingFaults {
  DWORD error = 0;
  int opening = 0;           // how many calls still fail: CreateFileW of an existing file...
  int moving = 0;            // ...MoveFileExW...
  int replacing = 0;         // ...ReplaceFileW...
  int deleting = 0;          // ...DeleteFileW...
  int reading = 0;           // ...ReadFile...
  int making = 0;            // ...CreateDirectoryW...
  int asking = 0;            // ...OpenProcessToken
  bool isAboutToGo = false;  // until opening works, no file gives its attributes
};

extern PassingFaults passingFaults;

// What another program does just before or after a call, once.
struct Interruptions {
  std::function<void()> beforeOpening;    // CreateFileW of an existing file
  std::function<void()> beforeMoving;     // MoveFileExW
  std::function<void()> beforeReplacing;  // ReplaceFileW
  std::function<void()> afterSizing;      // GetFileInformationByHandle
};

extern Interruptions interruptions;

// The tag of the reparse point that the test's files and folders have; 0: none.
extern DWORD reparseTag;

// Whether the file system has a number for each file.
extern bool hasFileNumbers;

// How many files have replaced another since the program started.
extern int replacedFiles;

// The flags that all calls of MoveFileExW had in common.
extern DWORD moveFlags;

}  // namespace brennet::test
