#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "markup/ElementIndex.h"
#include "markup/ResultLog.h"
#include "markup/StartTag.h"
#include "markup/text/TextDecoding.h"
#include "markup/text/TextForm.h"
#include "platform/Files.h"

namespace brennet {

class MarkupWriter;

// An XML document: one UTF-16 text, an index of its elements and a position among them.
//
// Edits change the text in place, so a document that is loaded and saved without edits is written
// back as it was. The parser is lenient; result() lists what is wrong with the text.
//
// The position is three elements, each of which may be missing: the parent, the main element, and
// the child. After parsing, all are missing, and the document itself is the parent.
//
// An edit takes time for the text behind it and for the elements behind and around it; adding at
// the end, as when a document is built, is quick. Adding behind the last child where there is no
// position to start from takes time for all its siblings.
//
// Every operation may throw std::bad_alloc or, for texts too long for std::u16string,
// std::length_error. The document is then as it was before the call or, if that was an edit of
// several steps, a valid document in between. A text never grows beyond 2^32 - 1 units: an edit
// that would need more returns false and changes nothing.
class MarkupDocument {
 public:
  // Flags of setData and addElem.
  enum Flag : std::uint32_t {
    kCData = 8,      // write the value as a CDATA section instead of escaping it
    kChild = 16384,  // add below the main element
  };
  // Flags of the document: a file is open through it.
  enum FileMode : std::uint32_t { kReading = 16, kWriting = 32 };

  MarkupDocument() = default;
  MarkupDocument(const MarkupDocument&) = delete;
  MarkupDocument& operator=(const MarkupDocument&) = delete;

  // Replaces the document by the content of the file at `path`, whose encoding is detected. The
  // result log starts afresh. Returns whether the file could be read (if not, the document is left
  // as it was) and is well-formed (see setDoc). Refuses while a file mode flag is set.
  // `blockSize` is how many bytes are converted at a time.
  bool load(std::u16string_view path, std::size_t blockSize = kReadBlockSize);

  // Replaces the document by `text` and clears the position. The result log starts afresh.
  // Returns whether the document is well-formed: it has a root element, the root has no sibling,
  // and the root has its end tag. Errors inside a closed root are logged only.
  bool setDoc(std::u16string text);

  // Writes the document to the file at `path`, in the encoding it declares, or in UTF-8 when it
  // declares none. The result log starts afresh. A document that was loaded keeps its byte-order
  // mark and byte order. Returns whether the file was written; characters that the encoding lacks
  // do not count. Refuses while a file mode flag is set. `old` says what happens to the file that
  // is replaced.
  bool save(std::u16string_view path, platform::OldContent old = platform::OldContent::Drop);

  // Moves the main position to the next sibling called `name` (any, if empty), from the first
  // child of the parent position when there is no main position; clears the child position.
  // Returns false, and keeps the position, when there is none, and in write-file mode.
  bool findElem(std::u16string_view name = {});

  // Moves the child position to the next child of the main element called `name` (any, if empty).
  // Without a main position it first moves to the first element. Returns false, and keeps the
  // child position, when there is none, and in either file mode.
  bool findChildElem(std::u16string_view name = {});

  // The name of the main element; empty if there is none. Valid as long as doc() is.
  [[nodiscard]] std::u16string_view getTagName() const;

  // Where the start tag of the main (child) element begins in doc(); nothing if there is none.
  [[nodiscard]] std::optional<std::size_t> mainOffset() const { return offsetOf(main_); }
  [[nodiscard]] std::optional<std::size_t> childOffset() const { return offsetOf(child_); }

  // The value of an attribute of the main (child) element, unescaped; empty if there is none.
  [[nodiscard]] std::u16string getAttrib(std::u16string_view name) const;
  [[nodiscard]] std::u16string getChildAttrib(std::u16string_view name) const;

  // The text directly inside the main (child) element: unescaped, CDATA as it is, comments and
  // child elements left out. Empty if there is no such element.
  [[nodiscard]] std::u16string getData() const;
  [[nodiscard]] std::u16string getChildData() const;

  // The same for who reads many values: views, where the text of the document says it as it is, or
  // of `buffer`, where references had to be resolved. Valid as long as both.
  [[nodiscard]] std::u16string_view getData(std::u16string& buffer) const;
  [[nodiscard]] std::u16string_view getChildData(std::u16string& buffer) const;

  // The start tag of the child element, to read its attributes in one pass, as they are written.
  // There must be a child element. Valid as long as doc() is.
  [[nodiscard]] StartTag childTag() const { return StartTag(startTagOf(child_)); }

  // Gives the main (child) element an attribute, or the first one of that name a new value.
  // Returns false without such an element, or for a `name` that cannot be one.
  bool setAttrib(std::u16string_view name, std::u16string_view value);
  bool setChildAttrib(std::u16string_view name, std::u16string_view value);

  // Replaces all content of the main (child) element, child elements included; the child position
  // is cleared when it was inside. `flags` may be kCData. Returns false without such an element.
  bool setData(std::u16string_view value, std::uint32_t flags = 0);
  bool setChildData(std::u16string_view value, std::uint32_t flags = 0);

  // Adds an element behind the main element, or as the last one of the parent position when there
  // is no main element, and makes it the main position. With kChild: adds it as the last child of
  // the main element and makes it the child position. An empty `value` gives an empty tag, unless
  // it is to be a CDATA section. Each added element gets a line of its own, unless its parent has
  // text of its own. Returns false for a `name` that cannot be one, and with kChild when there is
  // no main element.
  bool addElem(std::u16string_view name, std::u16string_view value = {}, std::uint32_t flags = 0);

  // Adds all elements of `writer`, which has closed them, as the last children of the main element,
  // as if by addElem with kChild, but clears the child position. Returns false when there is no
  // main element.
  bool addChildren(const MarkupWriter& writer);

  // Makes the main element the parent position and the child the main position, and clears the
  // child position. Returns false, and changes nothing, when there is no main position.
  bool intoElem();

  // The reverse: makes the main element the child position and the parent the main position.
  // Returns false, and changes nothing, when there is no parent position.
  bool outOfElem();

  // Clears the main and the child position: the next findElem starts at the first child of the
  // parent position.
  void resetMainPos();

  // The text of the document, valid until the next call that changes it.
  [[nodiscard]] const std::u16string& doc() const { return text_; }
  // What the last load, setDoc or save had to report: a markup text of empty elements.
  [[nodiscard]] const std::u16string& result() const { return log_.text(); }

  // FileMode flags; other flags are kept but mean nothing.
  [[nodiscard]] std::uint32_t docFlags() const { return docFlags_; }
  void setDocFlags(std::uint32_t flags) { docFlags_ = flags; }

 private:
  // What is to be added: siblings, the records with offsets in the text.
  struct NewElements {
    std::u16string_view text;
    std::span<const ElementRecord> records;
  };

  bool parse(std::u16string text, ResultLog log, TextForm form);
  [[nodiscard]] ElementNumber parent() const { return parents_.empty() ? 0 : parents_.back(); }
  [[nodiscard]] ElementNumber findChild(ElementNumber parent, ElementNumber behind,
                                        std::u16string_view name) const;
  [[nodiscard]] std::optional<std::size_t> offsetOf(ElementNumber element) const;
  [[nodiscard]] std::u16string_view startTagOf(ElementNumber element) const;
  [[nodiscard]] std::u16string attributeOf(ElementNumber element, std::u16string_view name) const;
  [[nodiscard]] std::u16string_view dataOf(ElementNumber element, std::u16string& buffer) const;

  bool setAttributeOf(ElementNumber element, std::u16string_view name, std::u16string_view value);
  bool setDataOf(ElementNumber element, std::u16string_view value, std::uint32_t flags);
  ElementNumber add(ElementNumber parent, const NewElements& elements);
  void insert(ElementNumber parent, ElementNumber number, std::size_t at,
              const NewElements& elements);
  [[nodiscard]] std::size_t behindLineOf(ElementNumber element) const;
  void fillEmptyTag(ElementNumber element, std::u16string_view content);
  bool closeUnclosed(ElementNumber parent, ElementNumber element, std::size_t room);
  bool holdsText(ElementNumber element);

  [[nodiscard]] bool canGrowBy(std::size_t units) const;
  template <class Change>
  void changeAround(ElementNumber element, Change change);
  void lengthen(ElementNumber element, std::uint32_t by);

  std::u16string text_;
  ElementIndex index_;
  ResultLog log_;
  TextForm form_;
  std::uint32_t docFlags_ = 0;
  std::vector<ElementNumber> parents_;  // from the root to the parent position
  ElementNumber main_ = 0;
  ElementNumber child_ = 0;
};

}  // namespace brennet
