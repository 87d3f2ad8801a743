#include "ui/ChatPhrases.h"

namespace brennet {
namespace {

constexpr const char* kGame[] = {
    "initiate first",
    "withdraw",
    "hang on",
    "wait ,i will be in position",
    "caution,not to be caught",
    "Miss!Miss",
    "all in,quick",
    "farm,not to be caught",
    "farm,no group battle",
    "assemblely",
    "farm,no group battle",
    "jungle ",
    "i will sacrifice",
    "assemble,remove fog",
    "do not chase,push tower",
    "come here, i am coming",
    "i will try push towers down secretly,defend!",
    "push line respectively,run in danger ",
    "gank",
    "back,defend",
    "steady",
};
constexpr const char* kStatus[] = {"phrase 1", "phrase 2", "phrase 3", "phrase 4",
                                   "phrase 5", "phrase 6", "phrase 7", "phrase 8"};
constexpr const char* kEquipment[] = {"phrase 9", "phrase 10", "phrase 11", "phrase 12",
                                      "phrase 13"};
constexpr const char* kEmotions[] = {"phrase 14", "phrase 15", "phrase 16",
                                     "phrase 17", "phrase 18", "phrase 19",
                                     "phrase 20", "phrase 21", "phrase 22"};

constexpr PhraseCategory kCategories[] = {
    {"game", kGame},
    {"status", kStatus},
    {"equipment", kEquipment},
    {"emotions", kEmotions},
};

}  // namespace

std::span<const PhraseCategory> chatPhrases() {
  return kCategories;
}

}  // namespace brennet
