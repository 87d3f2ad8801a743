// Where things are on the chat wheel page, whatever its texts.

#include <QFile>
#include <QFontInfo>
#include <QImage>
#include <QLabel>
#include <QScrollBar>

#include "tests/ui/pages/WheelPage.h"
#include "ui/window/StyleSheet.h"

namespace brennet::test {
namespace {

// Doubles each text, with a line break in the middle written as catalogues write it.
class TwoLines : public QTranslator {
 public:
  TwoLines() { QCoreApplication::installTranslator(this); }
  ~TwoLines() override { QCoreApplication::removeTranslator(this); }
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char* context, const char* text, const char* /*comment*/,
                                  int /*number*/) const override {
    if (qstrcmp(context, "CChatRouletteSettingWidget") != 0) return {};
    const QString whole = QString::fromUtf8(text);
    return whole + QStringLiteral("\\n") + whole;
  }
};

class WheelLook : public WheelPage {
 protected:
  // Shows the page with the skin, at its preferred size.
  void showInSkin() {
    ASSERT_TRUE(loadStyleSheet(page(), QStringLiteral(":/skin/war3key.qss")));
    page().resize(page().sizeHint());
    show();
  }
  QRect placeOf(const QWidget& widget) { return {widget.mapTo(&page(), QPoint()), widget.size()}; }
  void expectARing() {
    const QWidget& wheel = *slot(1).parentWidget();
    const QPoint middle = QRect(0, -80, wheel.width(), wheel.height() + 80).center();
    for (int n = 1; n <= 8; ++n) {
      const QRect place = slot(n).geometry();
      EXPECT_TRUE(wheel.rect().contains(place)) << n;
      EXPECT_GE(place.width(), slot(n).sizeHint().width());
      EXPECT_GE(place.height(), slot(n).sizeHint().height());
      EXPECT_FALSE(placeOf(slot(n)).intersects(placeOf(key()))) << n;
      for (int m = 1; m < n; ++m) EXPECT_FALSE(place.intersects(slot(m).geometry())) << n << m;
      // Clockwise from the top, in steps of an eighth.
      const QPoint from = place.center() - middle;
      const int across[] = {0, 1, 1, 1, 0, -1, -1, -1};
      const int down[] = {-1, -1, 0, 1, 1, 1, 0, -1};
      EXPECT_EQ(qAbs(from.x()) <= 1 ? 0 : from.x() / qAbs(from.x()), across[n - 1]) << n;
      EXPECT_EQ(qAbs(from.y()) <= 1 ? 0 : from.y() / qAbs(from.y()), down[n - 1]) << n;
    }
  }
};

TEST_F(WheelLook, HasARingOfSlotsAroundThePicture) {
  showInSkin();
  expectARing();
  EXPECT_GE(slot(1).parentWidget()->width(), 380);
  EXPECT_GE(slot(1).parentWidget()->height(), 380 + 80);
  page().resize(page().size() + QSize(300, 200));
  QCoreApplication::processEvents();
  expectARing();
}

TEST_F(WheelLook, PaintsThePictureInTheMiddleOfTheRing) {
  showInSkin();
  for (int n = 1; n <= 8; ++n) slot(n).hide();
  QWidget& wheel = *slot(1).parentWidget();
  const QImage painted = wheel.grab().toImage().convertToFormat(QImage::Format_RGB32);
  const QImage picture(QStringLiteral(":/skin/image/wheel.png"));
  const QPoint corner((wheel.width() - 380) / 2, (wheel.height() - 80 - 380) / 2);
  int different = 0;
  for (int y = 0; y < 380; ++y) {
    const QRgb expected = picture.pixel(190, y);
    if (qAlpha(expected) < 255) continue;
    if ((painted.pixel(corner + QPoint(190, y)) & 0xFFFFFFU) != (expected & 0xFFFFFFU)) ++different;
  }
  EXPECT_EQ(different, 0);
}

TEST_F(WheelLook, HasTheTreeAtTheRightAndTheKeyBelow) {
  showInSkin();
  const QWidget& wheel = *slot(1).parentWidget();
  EXPECT_GE(placeOf(tree()).left(), placeOf(wheel).right());
  EXPECT_GE(placeOf(key()).top(), placeOf(slot(5)).bottom());
  const QRect label = placeOf(find<QLabel>(page(), QStringLiteral("ChatWheelkey")));
  EXPECT_LT(label.right(), placeOf(key()).left());
  EXPECT_LT(qAbs(label.center().y() - placeOf(key()).center().y()), 3);
}

TEST_F(WheelLook, HasRoomForTextsOfDoubleSize) {
  QFont font = page().font();
  font.setPixelSize(2 * QFontInfo(font).pixelSize());
  page().setStyleSheet(QStringLiteral("QLineEdit { font-size: %1px; }").arg(font.pixelSize()));
  page().resize(page().sizeHint());
  show();
  EXPECT_EQ(slot(1).font().pixelSize(), font.pixelSize());
  expectARing();
}

TEST_F(WheelLook, HasRoomForTheLongestKey) {
  scheme().ChatWheelkey = KeyWord(0x2C, KeyWord::kCtrl | KeyWord::kAlt);
  showInSkin();
  EXPECT_EQ(key().text(), QStringLiteral("CTRL + Alt + PRINT SCREEN"));
  EXPECT_LT(key().fontMetrics().horizontalAdvance(key().text()) + 8, key().width());
}

TEST_F(WheelLook, BreaksLinesOfTranslatedPhrases) {
  const TwoLines twoLines;
  showInSkin();
  EXPECT_EQ(category(2).text(0), QStringLiteral("equipment\nequipment"));
  EXPECT_EQ(phrase(0, 18).text(0), QStringLiteral("gank\ngank"));
  EXPECT_GE(tree().visualItemRect(&phrase(0, 18)).height(), 2 * tree().fontMetrics().height());
  slot(8).setFocus();
  click(phrase(0, 18));
  EXPECT_EQ(stored(8), u"gank\ngank");
  expectARing();
}

TEST_F(WheelLook, ShowsWidePhrasesWhole) {
  const TwoLines twoLines;
  showInSkin();
  EXPECT_EQ(tree().textElideMode(), Qt::ElideNone);
  const int needed = tree().fontMetrics().horizontalAdvance(
      phrase(0, 16).text(0).section(QLatin1Char('\n'), 0, 0));
  EXPECT_GE(tree().columnWidth(0), needed);
  page().resize(page().minimumSizeHint());
  QCoreApplication::processEvents();
  const QScrollBar& bar = *tree().horizontalScrollBar();
  EXPECT_EQ(tree().viewport()->width() + bar.maximum(),
            qMax(tree().columnWidth(0), tree().viewport()->width()));
}

TEST_F(WheelLook, HasRowsOfTheHeightsOfTheSkinOrOfTheirText) {
  QFile sheet(QStringLiteral(":/skin/war3key.qss"));
  ASSERT_TRUE(sheet.open(QIODevice::ReadOnly));
  const QString skin = QString::fromUtf8(sheet.readAll());
  for (const int size : {9, 40}) {
    open().setStyleSheet(skin + QStringLiteral("CCustomTreeWidget { font-size: %1px; }").arg(size));
    show();
    const int text = tree().fontMetrics().height();
    EXPECT_EQ(tree().visualItemRect(&category(0)).height(), qMax(30, text)) << size;
    EXPECT_EQ(tree().visualItemRect(&phrase(0, 0)).height(), qMax(20, text)) << size;
  }
}

}  // namespace
}  // namespace brennet::test
