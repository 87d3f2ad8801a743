#include "platform/FileRights_win.h"

#include <windows.h>
// aclapi.h needs windows.h first.
#include <aclapi.h>

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

// A user, or the owner that his new files have; both begin with the SID.
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

}  // namespace

struct OwnRights::Body {
  // Whether all of it could be made.
  bool make() {
    auto* const entries = reinterpret_cast<ACL*>(list);
    attributes = {sizeof(attributes), &descriptor, FALSE};
    return user.find(TokenUser) && owner.find(TokenOwner) &&
           InitializeAcl(entries, sizeof(list), ACL_REVISION) != FALSE &&
           AddAccessAllowedAce(entries, ACL_REVISION, FILE_ALL_ACCESS, user.sid()) != FALSE &&
           InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION) != FALSE &&
           SetSecurityDescriptorDacl(&descriptor, TRUE, entries, FALSE) != FALSE &&
           SetSecurityDescriptorControl(&descriptor, SE_DACL_PROTECTED, SE_DACL_PROTECTED) != FALSE;
  }

  User user;
  User owner;
  alignas(ACL) BYTE list[sizeof(ACL) + sizeof(ACCESS_ALLOWED_ACE) + SECURITY_MAX_SID_SIZE] = {};
  SECURITY_DESCRIPTOR descriptor{};
  SECURITY_ATTRIBUTES attributes{};
};

OwnRights::OwnRights() : body_(std::make_unique<Body>()) {
  if (!body_->make()) body_.reset();
}

OwnRights::~OwnRights() = default;

void* OwnRights::attributes() const {
  return body_ != nullptr ? &body_->attributes : nullptr;
}

bool OwnRights::isOwnerOf(const Path& path) const {
  Descriptor descriptor;
  PSID owner = nullptr;
  return body_ != nullptr &&
         GetNamedSecurityInfoW(path.c_str(), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner,
                               nullptr, nullptr, nullptr, &descriptor.data) == ERROR_SUCCESS &&
         (EqualSid(owner, body_->user.sid()) != FALSE ||
          EqualSid(owner, body_->owner.sid()) != FALSE);
}

void copyFileRights(const Path& path, void* file) {
  Descriptor descriptor;
  ACL* list = nullptr;
  if (GetNamedSecurityInfoW(path.c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                            nullptr, &list, nullptr, &descriptor.data) == ERROR_SUCCESS) {
    // As it is; SetSecurityInfo would have the folder add to it.
    SetKernelObjectSecurity(file, DACL_SECURITY_INFORMATION, descriptor.data);
  }
}

}  // namespace brennet::platform
