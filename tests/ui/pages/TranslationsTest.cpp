// The catalogues are complete, fit their windows, and have every text that the windows ask for.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>
#include <QTreeWidget>
#include <QXmlStreamReader>

#include <memory>
#include <vector>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "model/HotkeyScheme.h"
#include "tests/ui/AllWindows.h"
#include "tests/ui/UiTest.h"
#include "ui/capture/KeyMessages.h"
#include "ui/chat/CCustomMsgTableModel.h"
#include "ui/chat/ChatPhrases.h"
#include "ui/window/CMsgBox.h"

namespace brennet::test {
namespace {

struct Entry {
  QString context, source, translation, state, comment;
};

QList<Entry> readEntries(const QString& language) {
  QFile file(QStringLiteral(BRENNET_TRANSLATION_SOURCES "/brennet_%1.ts").arg(language));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  QXmlStreamReader xml(&file);
  QList<Entry> entries;
  Entry entry;
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement()) continue;
    if (xml.name() == QLatin1String("name")) entry.context = xml.readElementText();
    if (xml.name() == QLatin1String("source")) {
      entry.source = xml.readElementText();
      entry.comment.clear();
    }
    if (xml.name() == QLatin1String("comment")) entry.comment = xml.readElementText();
    if (xml.name() != QLatin1String("translation")) continue;
    entry.state = xml.attributes().value(QLatin1String("type")).toString();
    entry.translation = xml.readElementText();
    entries += entry;
  }
  EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
  return entries;
}

class TranslationsTest : public testing::TestWithParam<const char*> {
 protected:
  TranslationsTest() {
    const QString name = QStringLiteral("brennet_%1.qm").arg(QLatin1String(GetParam()));
    EXPECT_TRUE(catalogue.load(name, QStringLiteral(BRENNET_TRANSLATIONS)));
  }
  QString translated(const QString& context, const QString& source,
                     const QString& comment = QString()) const {
    return catalogue.translate(context.toUtf8().constData(), source.toUtf8().constData(),
                               comment.toUtf8().constData());
  }
  // What messages call the entry.
  static std::string where(const Entry& entry) {
    return (entry.context + QLatin1String(": ") + entry.source).toStdString();
  }

  QTranslator catalogue;
  QList<Entry> entries = readEntries(QLatin1String(GetParam()));
};

TEST_P(TranslationsTest, IsWhole) {
  EXPECT_FALSE(entries.isEmpty());
  for (const Entry& entry : entries) {
    EXPECT_TRUE(entry.state.isEmpty() && !entry.translation.isEmpty())
        << where(entry) << ": translate it in translations/brennet_" << GetParam()
        << ".ts, and take its mark \"unfinished\" away";
    EXPECT_EQ(translated(entry.context, entry.source, entry.comment), entry.translation)
        << where(entry);
  }
}

TEST_P(TranslationsTest, KeepsPlaceholdersAndHasNoStraySpaces) {
  const QRegularExpression placeholder(QStringLiteral("%[0-9n]"));
  for (const Entry& entry : entries) {
    QStringList in[2];
    const QString* const texts[] = {&entry.source, &entry.translation};
    for (int i = 0; i < 2; ++i) {
      auto found = placeholder.globalMatch(*texts[i]);
      while (found.hasNext()) in[i] += found.next().captured();
      in[i].sort();
    }
    EXPECT_EQ(in[0], in[1]) << where(entry);
    EXPECT_EQ(entry.translation, entry.translation.trimmed()) << where(entry);
  }
}

TEST_P(TranslationsTest, HasNoMnemonicTwiceInAWindow) {
  const QRegularExpression mnemonic(QStringLiteral("&([^&])"));
  QSet<QString> used;
  for (const Entry& entry : entries) {
    const auto found = mnemonic.match(entry.translation);
    if (!found.hasMatch()) continue;
    const QString key = entry.context + found.captured(1).toLower();
    EXPECT_FALSE(used.contains(key)) << where(entry);
    used += key;
  }
}

TEST_P(TranslationsTest, HasPhrasesThatAreStoredWhole) {
  const QString context = QStringLiteral("CChatRouletteSettingWidget");
  for (const PhraseCategory& category : chatPhrases()) {
    EXPECT_NE(translated(context, QLatin1String(category.key)), QString()) << category.key;
    for (const char* const key : category.phrases) {
      const QString phrase = translated(context, QLatin1String(key));
      EXPECT_NE(phrase, QString()) << key;
      EXPECT_LE(phrase.size(), static_cast<int>(kPhraseUnits)) << key;
    }
  }
}

// Is asked before the catalogue: records each text and leaves the answer to the catalogue.
class Asked : public QTranslator {
 public:
  Asked() { QCoreApplication::installTranslator(this); }
  ~Asked() override { QCoreApplication::removeTranslator(this); }
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char* context, const char* text, const char* /*comment*/,
                                  int /*number*/) const override {
    entries.insert({QString::fromUtf8(context), QString::fromUtf8(text)});
    return {};
  }

  mutable QSet<QPair<QString, QString>> entries;
};

// Whether Qt itself asks for the texts of that context.
bool isOfQt(const QString& context) {
  return context.startsWith(QLatin1Char('Q')) && context != QLatin1String("QObject") &&
         context != QLatin1String("QDialogButtonBox");
}

std::vector<std::unique_ptr<QWidget>> makeWindows(HotkeyConfig& config) {
  std::vector<std::unique_ptr<QWidget>> windows;
  static Dota7KeyInfoManager manager;
  for (const WindowRow& row : allWindows()) windows.push_back(row.make(config, manager, nullptr));
  QMessageBox::StandardButtons all;
  for (int bit = QMessageBox::FirstButton; bit <= QMessageBox::LastButton; bit *= 2) {
    all |= static_cast<QMessageBox::StandardButton>(bit);
  }
  auto box = std::make_unique<CMsgBox>(QMessageBox::Warning, QString(), QString(), all);
  box->setButtonTexts();
  windows.push_back(std::move(box));
  return windows;
}

void collect(const QTreeWidgetItem& item, QStringList& texts) {
  texts += item.text(0);
  for (int i = 0; i < item.childCount(); ++i) collect(*item.child(i), texts);
}

void collect(const QWidget& widget, QStringList& texts) {
  texts << widget.windowTitle() << widget.toolTip() << widget.accessibleName()
        << widget.accessibleDescription();
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) texts += label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) texts += button->text();
  if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) texts += group->title();
  if (const auto* tree = qobject_cast<const QTreeWidget*>(&widget)) {
    collect(*tree->invisibleRootItem(), texts);
  }
}

QStringList textsOf(const QWidget& window) {
  QStringList texts;
  collect(window, texts);
  const auto children = window.findChildren<QWidget*>();
  for (const QWidget* const child : children) collect(*child, texts);
  return texts;
}

void showMessages(QStringList& texts) {
  for (void (*const tell)(QWidget*, const QString&) : {tellKeyIsUsed, tellKeySetIsUsed}) {
    const auto warning = whenBoxIsShown([&](QMessageBox& box) {
      texts << box.windowTitle() << box.text() << textsOf(box);
      box.done(0);
    });
    tell(nullptr, {});
  }
  const CCustomMsgTableModel table;
  for (int i = 0; i < 2; ++i)
    texts += table.headerData(i, Qt::Horizontal, Qt::DisplayRole).toString();
}

TEST_P(TranslationsTest, HasAllThatTheWindowsAskFor) {
  QCoreApplication::installTranslator(&catalogue);
  HotkeyConfig config;
  QStringList texts;
  const Asked asked;
  for (const auto& window : makeWindows(config)) texts += textsOf(*window);
  showMessages(texts);
  for (const auto& [context, source] : asked.entries) {
    if (isOfQt(context)) continue;
    EXPECT_NE(translated(context, source), QString()) << where({context, source, {}, {}, {}});
  }
  EXPECT_GT(asked.entries.size(), entries.size() / 2);

  QSet<QString> identifiers;
  for (const Entry& entry : entries) {
    if (entry.translation != entry.source) identifiers += entry.source;
  }
  for (const QString& text : texts) EXPECT_FALSE(identifiers.contains(text)) << qPrintable(text);
  const QRegularExpression chinese(
      QStringLiteral("\\p{Han}|[\\x{3000}-\\x{303F}\\x{FF00}-\\x{FFEF}]"));
  const bool isChinese = QLatin1String(GetParam()) == QLatin1String("zh_CN");
  EXPECT_EQ(texts.filter(chinese).isEmpty(), !isChinese)
      << qPrintable(texts.filter(chinese).join(QLatin1Char('\n')));
}

INSTANTIATE_TEST_SUITE_P(Of, TranslationsTest, testing::Values("en", "zh_CN"),
                         [](const auto& language) { return std::string(language.param); });

}  // namespace
}  // namespace brennet::test
