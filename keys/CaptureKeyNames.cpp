#include "keys/CaptureKeyNames.h"

#include "keys/KeyName.h"

namespace brennet {
namespace {

// Wording and coverage differ from Dota7KeyNames on purpose: the two families of windows each name
// keys in their own way.
constexpr KeyName kCaptureNames[] = {
    {0x08, u"BACK"},       {0x09, u"TAB"},      {0x0C, u"CLEAR"},      {0x0D, u"RETURN"},
    {0x10, u"SHIFT"},      {0x11, u"CTRL"},     {0x12, u"ALT"},        {0x13, u"Pause"},
    {0x14, u"CAPS"},       {0x15, u"KANA"},     {0x1B, u"ESC"},        {0x1C, u"CONVERT"},
    {0x1D, u"NONCONVERT"}, {0x1E, u"ACCEPT"},   {0x1F, u"MODECHANGE"}, {0x20, u"SPACE"},
    {0x21, u"PAGEUP"},     {0x22, u"PAGEDOWN"}, {0x23, u"END"},        {0x24, u"HOME"},
    {0x25, u"LEFT"},       {0x26, u"UP"},       {0x27, u"RIGHT"},      {0x28, u"DOWN"},
    {0x29, u"SELECT"},     {0x2A, u"PRINT"},    {0x2B, u"EXECUTE"},    {0x2C, u"PRINT SCREEN"},
    {0x2D, u"INS"},        {0x2E, u"DELETE"},   {0x2F, u"HELP"},       {0x30, u"0"},
    {0x31, u"1"},          {0x32, u"2"},        {0x33, u"3"},          {0x34, u"4"},
    {0x35, u"5"},          {0x36, u"6"},        {0x37, u"7"},          {0x38, u"8"},
    {0x39, u"9"},          {0x41, u"A"},        {0x42, u"B"},          {0x43, u"C"},
    {0x44, u"D"},          {0x45, u"E"},        {0x46, u"F"},          {0x47, u"G"},
    {0x48, u"H"},          {0x49, u"I"},        {0x4A, u"J"},          {0x4B, u"K"},
    {0x4C, u"L"},          {0x4D, u"M"},        {0x4E, u"N"},          {0x4F, u"O"},
    {0x50, u"P"},          {0x51, u"Q"},        {0x52, u"R"},          {0x53, u"S"},
    {0x54, u"T"},          {0x55, u"U"},        {0x56, u"V"},          {0x57, u"W"},
    {0x58, u"X"},          {0x59, u"Y"},        {0x5A, u"Z"},          {0x5B, u"LWIN"},
    {0x5C, u"RWIN"},       {0x5D, u"APPS"},     {0x5F, u"SLEEP"},      {0x60, u"NUM0"},
    {0x61, u"NUM1"},       {0x62, u"NUM2"},     {0x63, u"NUM3"},       {0x64, u"NUM4"},
    {0x65, u"NUM5"},       {0x66, u"NUM6"},     {0x67, u"NUM7"},       {0x68, u"NUM8"},
    {0x69, u"NUM9"},       {0x6A, u"NUM *"},    {0x6B, u"NUM +"},      {0x6C, u"SEPARATOR"},
    {0x6D, u"NUM -"},      {0x6E, u"NUM ."},    {0x6F, u"NUM /"},      {0x70, u"F1"},
    {0x71, u"F2"},         {0x72, u"F3"},       {0x73, u"F4"},         {0x74, u"F5"},
    {0x75, u"F6"},         {0x76, u"F7"},       {0x77, u"F8"},         {0x78, u"F9"},
    {0x79, u"F10"},        {0x7A, u"F11"},      {0x7B, u"F12"},        {0x90, u"NUM LOCK"},
    {0x91, u"SCROLL"},     {0xA0, u"LSHIFT"},   {0xA1, u"RSHIFT"},     {0xA2, u"LCTRL"},
    {0xA3, u"RCTRL"},      {0xA4, u"LAlt"},     {0xA5, u"RAlt"},       {0xBA, u";"},
    {0xBB, u"="},          {0xBC, u","},        {0xBD, u"-"},          {0xBE, u"."},
    {0xBF, u"/"},          {0xC0, u"`"},        {0xDB, u"["},          {0xDC, u"\\"},
    {0xDD, u"]"},          {0xDE, u"'"},
};
static_assert(isSortedByCode(kCaptureNames), "the look-up is a binary search");

}  // namespace

std::u16string_view keyName(int code) {
  const auto* row = std::lower_bound(
      std::begin(kCaptureNames), std::end(kCaptureNames), code,
      [](const KeyName& candidate, int wanted) { return candidate.code < wanted; });
  if (row == std::end(kCaptureNames) || row->code != code) return {};
  return row->name;
}

bool getKeyName(int code, std::u16string& out) {
  const std::u16string_view name = keyName(code);
  if (name.empty()) return false;
  out = name;
  return true;
}

}  // namespace brennet
