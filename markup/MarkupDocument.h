#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace brennet {

// (Public interface sketch: the private half is the implementer's.)
class MarkupDocument {
 public:
  enum Flag : std::uint32_t { kCData = 8, kChild = 16384 };
  enum FileMode : std::uint32_t { kReading = 16, kWriting = 32 };

  bool load(std::u16string_view path);
  bool setDoc(std::u16string text);
  bool save(std::u16string_view path);

  bool findElem(std::u16string_view name = {});
  bool findChildElem(std::u16string_view name = {});
  std::u16string getAttrib(std::u16string_view name) const;
  std::u16string getChildAttrib(std::u16string_view name) const;
  std::u16string getData() const;
  std::u16string getChildData() const;
  bool setAttrib(std::u16string_view name, std::u16string_view value);
  bool setChildAttrib(std::u16string_view name, std::u16string_view value);
  bool setData(std::u16string_view value, std::uint32_t flags = 0);
  bool setChildData(std::u16string_view value, std::uint32_t flags = 0);
  bool addElem(std::u16string_view name, std::u16string_view value = {}, std::uint32_t flags = 0);
  bool intoElem();
  bool outOfElem();
  void resetMainPos();

  const std::u16string& doc() const;
  const std::u16string& result() const;
  std::uint32_t docFlags() const;
  void setDocFlags(std::uint32_t flags);
};

}  // namespace brennet
