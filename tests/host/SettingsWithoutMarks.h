#pragma once

#include <string>

namespace brennet::test {

// A settings file that removes the quick-cast marks from an object that is used again: a load
// changes only those that the file names.
inline std::string settingsWithoutMarks() {
  std::string text = "<KeyInfo><LastSaveTime>1</LastSaveTime>";
  for (int scheme = 0; scheme < 3; ++scheme) {
    const std::string element = "KeyInfo_" + std::to_string(scheme) + ">";
    text += "<" + element;
    for (const char* const keys : {"HeroSkillKey>", "ItemKey>"}) {
      text += std::string("<") + keys;
      for (const int id : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 97, 98, 100, 101, 103, 104}) {
        text += "<Key id=\"" + std::to_string(id) + "\" autocast=\"0\">65280</Key>";
      }
      text += std::string("</") + keys;
    }
    text += "</" + element;
  }
  return text + "</KeyInfo>";
}

}  // namespace brennet::test
