#include "ui/chat/ChatPhrases.h"

#include <QtGlobal>

namespace brennet {
namespace {

constexpr const char* kGame[] = {
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "initiate first"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "withdraw"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "hang on"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "wait ,i will be in position"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "caution,not to be caught"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "Miss!Miss"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "all in,quick"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "farm,not to be caught"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "farm,no group battle"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "assemblely"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "farm,no group battle"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "jungle "),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "i will sacrifice"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "assemble,remove fog"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "do not chase,push tower"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "come here, i am coming"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "i will try push towers down secretly,defend!"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "push line respectively,run in danger "),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "gank"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "back,defend"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "steady"),
};
constexpr const char* kStatus[] = {
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 1"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 2"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 3"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 4"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 5"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 6"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 7"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 8"),
};
constexpr const char* kEquipment[] = {
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 9"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 10"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 11"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 12"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 13"),
};
constexpr const char* kEmotions[] = {
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 14"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 15"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 16"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 17"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 18"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 19"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 20"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 21"),
    QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "phrase 22"),
};

constexpr PhraseCategory kCategories[] = {
    {QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "game"), kGame},
    {QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "status"), kStatus},
    {QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "equipment"), kEquipment},
    {QT_TRANSLATE_NOOP("CChatRouletteSettingWidget", "emotions"), kEmotions},
};

}  // namespace

std::span<const PhraseCategory> chatPhrases() {
  return kCategories;
}

}  // namespace brennet
