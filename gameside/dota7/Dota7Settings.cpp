#include "gameside/dota7/Dota7Settings.h"

#include <optional>
#include <utility>
#include <vector>

#include "markup/text/Utf8.h"

namespace brennet {
namespace {

constexpr std::uint32_t kLargestCode = 0xFF;
constexpr Dota7Cast kCasts[] = {Dota7Cast::Normal, Dota7Cast::Quick};

// The index of a row in its table.
template <class Row>
std::size_t indexOf(const Row& row, std::span<const Row> rows) {
  return static_cast<std::size_t>(&row - rows.data());
}

// Which of a field's keys belongs to the cast mode.
std::size_t sideOf(const Dota7KeyField& field, Dota7Cast cast) {
  return cast == Dota7Cast::Quick && field.followsCast() ? 1 : 0;
}

// The bytes of a text; nothing if there is no text, or one too long to be ours.
std::optional<std::string> textIn(const std::optional<platform::RegistryValue>& value) {
  if (!value || value->type != platform::kRegistryBinary) return std::nullopt;
  if (value->data.size() > kDota7TextBytes) return std::nullopt;
  return value->data;
}

// Whether there is a value of that name, and one that is not `usual`.
bool holdsOther(const platform::RegistryKey& source, std::u16string_view name,
                const platform::RegistryValue& usual) {
  const platform::RegistryKey::Reading reading = source.read(name);
  return reading.value && *reading.value != usual;
}

struct PhraseReading {
  std::u16string text;
  bool isWhole;  // writing the text again would give the same value
};

PhraseReading phraseIn(const platform::RegistryKey::Reading& reading) {
  PhraseReading result{{}, reading.known && !reading.value};
  if (const std::optional<std::string> bytes = textIn(reading.value)) {
    utf8ToUtf16(*bytes, result.text);
    result.isWhole = dota7TextBytes(result.text) == *bytes;
  }
  return result;
}

// What is left of a phrase after a round trip through the registry.
std::u16string asStored(std::u16string_view text) {
  std::u16string stored;
  utf8ToUtf16(dota7TextBytes(text), stored);
  return stored;
}

Dota7Change changeOf(std::u16string_view keyPath, std::u16string_view textName,
                     std::u16string_view text) {
  Dota7Change change;
  change.keyPath = keyPath;
  change.kind = Dota7Change::Kind::NumbersAndText;
  change.textName = textName;
  change.text = text;
  change.hasText = !text.empty();
  return change;
}

// A key as the registry can have it.
Dota7Key stored(Dota7Key key) {
  if (key.code == 0) return {};
  const bool isItself = key.code == Dota7Key::kCtrl || key.code == Dota7Key::kAlt;
  const bool isHeld = key.modifier == Dota7Key::kCtrl || key.modifier == Dota7Key::kAlt;
  if (isItself || !isHeld) key.modifier = Dota7Key::kNoModifier;
  return key;
}

}  // namespace

// A key of the registry with values that are read: as they are, or as they were before changes.
class Dota7Settings::Source {
 public:
  explicit Source(std::u16string_view path, const Dota7Undos* changes = nullptr)
      : key_(path), path_(path), changes_(changes) {}

  [[nodiscard]] const std::u16string& path() const { return path_; }

  [[nodiscard]] platform::RegistryKey::Reading read(std::u16string_view name) const {
    if (changes_ == nullptr) return key_.read(name);
    const auto change = changes_->find({path_, std::u16string(name)});
    const bool isChanged = change != changes_->end() && change->second.isChanged;
    if (!isChanged) return key_.read(name);
    return {.known = true, .value = change->second.old};
  }

  // The number in four bytes, whatever the type of the value; 0 if there are not four.
  [[nodiscard]] std::uint32_t number(std::u16string_view name) const {
    const platform::RegistryKey::Reading reading = read(name);
    return reading.value ? platform::fourBytesIn(*reading.value).value_or(0) : 0;
  }

 private:
  platform::RegistryKey key_;
  std::u16string path_;
  const Dota7Undos* changes_;
};

void Dota7Settings::load() {
  load(Source(kDota7ControlPath), Source(kDota7PhrasesPath));
}

void Dota7Settings::loadAsBefore(const Dota7Undos& changes) {
  load(Source(kDota7ControlPath, &changes), Source(kDota7PhrasesPath, &changes));
}

void Dota7Settings::load(const Source& control, const Source& phrases) {
  loadKeys(control);
  for (const Dota7Switch& row : dota7Switches()) {
    switches_[indexOf(row, dota7Switches())] = control.number(row.valueName) != 0;
  }
  loadPhrases(phrases);
}

void Dota7Settings::loadPhrases() {
  loadPhrases(Source(kDota7PhrasesPath));
}

void Dota7Settings::loadPhrases(const Source& source) {
  loadKeys(source);
  for (const Dota7Phrase& row : dota7Phrases()) {
    const std::size_t index = indexOf(row, dota7Phrases());
    PhraseReading reading = phraseIn(source.read(row.valueName));
    phrases_[index] = std::move(reading.text);
    unreadable_[index] = !reading.isWhole;
  }
}

void Dota7Settings::loadKeys(const Source& source) {
  for (const Dota7KeyField& field : dota7KeyFields()) {
    if (field.keyPath != source.path()) continue;
    for (const Dota7Cast cast : kCasts) {
      keyPlace(field, cast) = readKey(source, field.values(cast));
    }
  }
}

// The registry has no value for the modifier: it is found in the text stored with the key.
Dota7Key Dota7Settings::readKey(const Source& source, const Dota7ValuePair& values) const {
  const std::uint32_t code = source.number(values.code);
  if (code == 0 || code > kLargestCode) return {};
  Dota7Key key{static_cast<int>(code), Dota7Key::kNoModifier};
  const std::optional<std::string> text = textIn(source.read(values.text).value);
  for (const int modifier : {Dota7Key::kNoModifier, Dota7Key::kCtrl, Dota7Key::kAlt}) {
    if (text != dota7TextBytes(names_->keyText(key.code, modifier))) continue;
    key.modifier = modifier;
    break;
  }
  return key;
}

Dota7Key& Dota7Settings::keyPlace(const Dota7KeyField& field, Dota7Cast cast) {
  return keys_[indexOf(field, dota7KeyFields())][sideOf(field, cast)];
}

Dota7Key Dota7Settings::key(const Dota7KeyField& field) const {
  return keys_[indexOf(field, dota7KeyFields())][sideOf(field, cast_)];
}

std::u16string Dota7Settings::keyText(const Dota7KeyField& field) const {
  const Dota7Key shown = key(field);
  return shown.code == 0 ? std::u16string() : names_->keyText(shown.code, shown.modifier);
}

const Dota7KeyField* Dota7Settings::holderOf(const Dota7KeyField& field, Dota7Key wanted) const {
  wanted = stored(wanted);
  if (wanted.code == 0) return nullptr;
  for (const Dota7KeyField& other : dota7KeyFields()) {
    if (&other != &field && key(other) == wanted) return &other;
  }
  return nullptr;
}

bool Dota7Settings::storeKey(const Dota7KeyField& field, Dota7Key key) {
  if (holderOf(field, key) != nullptr) return false;
  apply(keyChange(field, cast_, stored(key)));
  return true;
}

void Dota7Settings::clearKey(const Dota7KeyField& field) {
  apply(keyChange(field, cast_, {}));
}

void Dota7Settings::apply(const Dota7FieldChange& change) {
  changes_->apply({&change, 1});
}

Dota7FieldChange Dota7Settings::keyChange(const Dota7KeyField& field, Dota7Cast cast,
                                          const Dota7Key& key) {
  const Dota7ValuePair& values = field.values(cast);
  const std::u16string text =
      key.code == 0 ? std::u16string() : names_->keyText(key.code, key.modifier);
  Dota7Change change = changeOf(field.keyPath, values.text, text);
  change.valueName = values.code;
  change.value = static_cast<std::uint32_t>(key.code);
  keyPlace(field, cast) = key;
  return {field.objectName, std::move(change)};
}

bool Dota7Settings::isOn(const Dota7Switch& row) const {
  return switches_[indexOf(row, dota7Switches())];
}

void Dota7Settings::setOn(const Dota7Switch& row, bool on) {
  apply(switchChange(row, on));
}

Dota7FieldChange Dota7Settings::switchChange(const Dota7Switch& row, bool on) {
  Dota7Change change;
  change.keyPath = kDota7ControlPath;
  change.valueName = row.valueName;
  change.value = on ? 1 : 0;
  switches_[indexOf(row, dota7Switches())] = on;
  return {row.objectName, std::move(change)};
}

const std::u16string& Dota7Settings::phrase(const Dota7Phrase& row) const {
  return phrases_[indexOf(row, dota7Phrases())];
}

void Dota7Settings::setPhrase(const Dota7Phrase& row, std::u16string_view text, bool isTyped) {
  const std::size_t index = indexOf(row, dota7Phrases());
  std::u16string stored = asStored(text);
  if (unreadable_[index] && !isTyped && stored == phrases_[index]) return;
  apply(phraseChange(row, std::move(stored)));
}

Dota7FieldChange Dota7Settings::phraseChange(const Dota7Phrase& row, std::u16string stored) {
  const std::size_t index = indexOf(row, dota7Phrases());
  phrases_[index] = std::move(stored);
  unreadable_[index] = false;
  return {row.objectName, changeOf(kDota7PhrasesPath, row.valueName, phrases_[index])};
}

void Dota7Settings::reset() {
  const platform::RegistryKey control(kDota7ControlPath);
  const platform::RegistryKey phrases(kDota7PhrasesPath);
  const platform::RegistryValue nothing{platform::kRegistryBinary, {}};
  const platform::RegistryValue zero = platform::dwordValue(0);
  std::vector<Dota7FieldChange> changes;
  for (const Dota7KeyField& field : dota7KeyFields()) {
    const auto& source = field.keyPath == kDota7ControlPath ? control : phrases;
    for (const Dota7Cast cast : kCasts) {
      const Dota7ValuePair& values = field.values(cast);
      const bool isSet = keyPlace(field, cast) != Dota7Key() ||
                         holdsOther(source, values.text, nothing) ||
                         holdsOther(source, values.code, zero);
      if (isSet) changes.push_back(keyChange(field, cast, {}));
    }
  }
  for (const Dota7Switch& row : dota7Switches()) {
    if (isOn(row) || holdsOther(control, row.valueName, zero)) {
      changes.push_back(switchChange(row, false));
    }
  }
  for (const Dota7Phrase& row : dota7Phrases()) {
    if (phrase(row).empty() && !holdsOther(phrases, row.valueName, nothing)) continue;
    changes.push_back(phraseChange(row, {}));
  }
  changes_->apply(changes);
  cast_ = Dota7Cast::Normal;
}

}  // namespace brennet
