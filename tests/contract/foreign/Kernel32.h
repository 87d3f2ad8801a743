// The few functions of kernel32 that the foreign programs call, declared by hand: like hosts that
// were compiled long ago, they see none of today's headers.
#pragma once

extern "C" {

using Address = void*;
using Module = void*;
using Handle = void*;

struct ExceptionPointers;
using ExceptionFilter = long(__stdcall*)(ExceptionPointers*);

struct MemoryRange {
  Address base;
  Address allocationBase;
  unsigned allocationProtect;
  unsigned size;
  unsigned state;
  unsigned protect;
  unsigned type;
};

struct HeapEntry {
  Address data;
  unsigned size;
  unsigned char overhead;
  unsigned char region;
  unsigned short flags;
  unsigned detail[4];
};

__declspec(dllimport) Module __stdcall LoadLibraryW(const wchar_t* name);
__declspec(dllimport) Module
    __stdcall LoadLibraryExW(const wchar_t* name, Handle reserved, unsigned flags);
__declspec(dllimport) int __stdcall FreeLibrary(Module module);
__declspec(dllimport) Module __stdcall GetModuleHandleW(const wchar_t* name);
__declspec(dllimport) unsigned __stdcall GetModuleFileNameW(Module module, wchar_t* path,
                                                            unsigned size);
__declspec(dllimport) Address __stdcall GetProcAddress(Module module, const char* name);

__declspec(dllimport) Address
    __stdcall VirtualAlloc(Address at, unsigned size, unsigned type, unsigned protect);
__declspec(dllimport) int __stdcall VirtualFree(Address at, unsigned size, unsigned type);
__declspec(dllimport) int __stdcall VirtualProtect(Address at, unsigned size, unsigned protect,
                                                   unsigned* before);
__declspec(dllimport) unsigned __stdcall VirtualQuery(const void* at, MemoryRange* range,
                                                      unsigned size);
__declspec(dllimport) Handle __stdcall GetProcessHeap();
__declspec(dllimport) unsigned __stdcall GetProcessHeaps(unsigned size, Handle* heaps);
__declspec(dllimport) Address __stdcall HeapAlloc(Handle heap, unsigned flags, unsigned size);
__declspec(dllimport) int __stdcall HeapWalk(Handle heap, HeapEntry* entry);
__declspec(dllimport) int __stdcall GetHandleInformation(Handle handle, unsigned* flags);

__declspec(dllimport) Handle
    __stdcall CreateFileW(const wchar_t* name, unsigned access, unsigned share, void* security,
                          unsigned disposition, unsigned attributes, Handle like);
__declspec(dllimport) int __stdcall ReadFile(Handle file, void* bytes, unsigned size,
                                             unsigned* done, void* overlapped);
__declspec(dllimport) int __stdcall WriteFile(Handle file, const void* bytes, unsigned size,
                                              unsigned* done, void* overlapped);
__declspec(dllimport) Handle
    __stdcall CreateEventW(void* security, int manual, int set, const wchar_t* name);
__declspec(dllimport) int __stdcall CloseHandle(Handle handle);
__declspec(dllimport) int __stdcall DeleteFileW(const wchar_t* name);
__declspec(dllimport) unsigned __stdcall GetTempPathW(unsigned size, wchar_t* folder);
__declspec(dllimport) unsigned __stdcall GetTempFileNameW(const wchar_t* folder,
                                                          const wchar_t* prefix, unsigned number,
                                                          wchar_t* name);

__declspec(dllimport) unsigned __stdcall TlsAlloc();
__declspec(dllimport) int __stdcall TlsFree(unsigned index);

__declspec(dllimport) const wchar_t* __stdcall GetCommandLineW();
__declspec(dllimport) unsigned __stdcall GetEnvironmentVariableW(const wchar_t* name,
                                                                 wchar_t* value, unsigned size);
__declspec(dllimport) int __stdcall SetEnvironmentVariableW(const wchar_t* name,
                                                            const wchar_t* value);
__declspec(dllimport) Handle __stdcall GetStdHandle(unsigned which);
__declspec(dllimport) ExceptionFilter __stdcall SetUnhandledExceptionFilter(ExceptionFilter filter);
[[noreturn]] __declspec(dllimport) void __stdcall ExitProcess(unsigned code);

}  // extern "C"

constexpr unsigned kLoadWithAlteredSearchPath = 8;
constexpr unsigned kStandardOutput = 0xFFFFFFF5;
constexpr unsigned kMemCommit = 0x1000;
constexpr unsigned kMemReserve = 0x2000;
constexpr unsigned kMemRelease = 0x8000;
constexpr unsigned kMemPrivate = 0x20000;
constexpr unsigned kPageNoAccess = 1;
constexpr unsigned kPageReadOnly = 2;
constexpr unsigned kPageReadWrite = 4;
constexpr unsigned kPageSize = 4096;
constexpr unsigned kHeapEntryBusy = 4;
constexpr unsigned kGenericRead = 0x80000000;
constexpr unsigned kGenericWrite = 0x40000000;
constexpr unsigned kCreateAlways = 2;
constexpr unsigned kOpenExisting = 3;
