#include "platform/win/FileRights.h"

#include <windows.h>
// aclapi.h needs windows.h first.
#include <aclapi.h>

#include "platform/win/OpenForFacts.h"

namespace brennet::platform {
namespace {

// What GetNamedSecurityInfoW gives, freed when it goes out of scope.
struct Descriptor {
  Descriptor() = default;
  ~Descriptor() { LocalFree(data); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  PSECURITY_DESCRIPTOR data = nullptr;
};

// The user of the process, or the owner that his new files get; the data of both begins with the
// SID.
struct User {
  bool find(TOKEN_INFORMATION_CLASS what) {
    HANDLE token = nullptr;
    if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) == FALSE) return false;
    DWORD size = 0;
    const BOOL isFound = GetTokenInformation(token, what, data, sizeof(data), &size);
    CloseHandle(token);
    return isFound != FALSE;
  }
  [[nodiscard]] PSID sid() const { return reinterpret_cast<const TOKEN_USER*>(data)->User.Sid; }

  alignas(TOKEN_USER) BYTE data[sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE] = {};
};

// Whether it is a folder itself: not a link, a junction, or anything else that a driver puts there.
bool isPlainFolder(const BY_HANDLE_FILE_INFORMATION& info) {
  constexpr DWORD kAsked = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
  return (info.dwFileAttributes & kAsked) == FILE_ATTRIBUTE_DIRECTORY;
}

}  // namespace

struct OwnRights::Body {
  // Whether the user is known; tried again until he is.
  bool isKnown() { return isMade || (isMade = make()); }

  // Returns whether all of it could be made.
  bool make() {
    auto* const entries = reinterpret_cast<ACL*>(list);
    attributes = {sizeof(attributes), &descriptor, FALSE};
    return user.find(TokenUser) && owner.find(TokenOwner) &&
           InitializeAcl(entries, sizeof(list), ACL_REVISION) != FALSE &&
           AddAccessAllowedAce(entries, ACL_REVISION, FILE_ALL_ACCESS, user.sid()) != FALSE &&
           InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION) != FALSE &&
           // Else what an elevated process creates would belong to the administrators.
           SetSecurityDescriptorOwner(&descriptor, user.sid(), FALSE) != FALSE &&
           SetSecurityDescriptorDacl(&descriptor, TRUE, entries, FALSE) != FALSE &&
           SetSecurityDescriptorControl(&descriptor, SE_DACL_PROTECTED, SE_DACL_PROTECTED) != FALSE;
  }

  [[nodiscard]] bool isOwn(PSID sid) const {
    return EqualSid(sid, user.sid()) != FALSE || EqualSid(sid, owner.sid()) != FALSE;
  }

  // The owner of a folder can change its list. The administrators can do that anyway.
  [[nodiscard]] bool mayOwn(PSID sid) const { return isOwn(sid) || isAdministrators(sid); }

  static bool isAdministrators(PSID sid) {
    return IsWellKnownSid(sid, WinBuiltinAdministratorsSid) != FALSE;
  }

  // Without a list everybody has access. Entries that deny something open nothing.
  [[nodiscard]] bool opensToNobodyElse(ACL* entries) const {
    if (entries == nullptr) return false;
    for (DWORD i = 0; i < entries->AceCount; ++i) {
      void* entry = nullptr;
      if (GetAce(entries, i, &entry) == FALSE) return false;
      const auto* const header = static_cast<const ACE_HEADER*>(entry);
      if (header->AceType == ACCESS_DENIED_ACE_TYPE) continue;
      if (header->AceType != ACCESS_ALLOWED_ACE_TYPE) return false;
      const PSID sid = &static_cast<ACCESS_ALLOWED_ACE*>(entry)->SidStart;
      const bool mayAnyway =
          IsWellKnownSid(sid, WinLocalSystemSid) != FALSE || isAdministrators(sid);
      if (!mayAnyway && !isOwn(sid)) return false;
    }
    return true;
  }

  bool isMade = false;
  User user;
  User owner;
  alignas(ACL) BYTE list[sizeof(ACL) + sizeof(ACCESS_ALLOWED_ACE) + SECURITY_MAX_SID_SIZE] = {};
  SECURITY_DESCRIPTOR descriptor{};
  SECURITY_ATTRIBUTES attributes{};
};

OwnRights::OwnRights() : body_(std::make_unique<Body>()) {}

OwnRights::~OwnRights() = default;

void* OwnRights::attributes() const {
  return body_->isKnown() ? &body_->attributes : nullptr;
}

unsigned long OwnRights::check(const Path& path) const {
  const OpenForFacts folder(path, READ_CONTROL);
  if (folder.error != ERROR_SUCCESS) return folder.error;
  if (!isPlainFolder(folder.info)) return ERROR_ACCESS_DENIED;
  if (!body_->isKnown()) return ERROR_NO_TOKEN;
  Descriptor descriptor;
  PSID owner = nullptr;
  ACL* list = nullptr;
  const DWORD error = GetSecurityInfo(folder.handle, SE_FILE_OBJECT,
                                      OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION,
                                      &owner, nullptr, &list, nullptr, &descriptor.data);
  // A file system without access lists keeps nobody out.
  if (error == ERROR_NOT_SUPPORTED || error == ERROR_INVALID_FUNCTION) return ERROR_ACCESS_DENIED;
  if (error != ERROR_SUCCESS) return error;
  const bool isOwn = owner != nullptr && body_->mayOwn(owner) && body_->opensToNobodyElse(list);
  return isOwn ? ERROR_SUCCESS : ERROR_ACCESS_DENIED;
}

void copyFileRights(const Path& path, void* file) {
  Descriptor descriptor;
  ACL* list = nullptr;
  if (GetNamedSecurityInfoW(path.c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                            nullptr, &list, nullptr, &descriptor.data) == ERROR_SUCCESS) {
    // Sets the list as it is; SetSecurityInfo would let the folder add to it.
    SetKernelObjectSecurity(file, DACL_SECURITY_INFORMATION, descriptor.data);
  }
}

}  // namespace brennet::platform
