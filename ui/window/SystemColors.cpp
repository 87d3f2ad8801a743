#include "ui/window/SystemColors.h"

#include <QRegularExpression>
#include <QStringList>

namespace brennet {
namespace {

// Buttons that are nothing but pictures, as selectors name them, and such parts of other controls.
constexpr char kPictureControls[] =
    "#btnClose|#btnOrrerySetting|#btnTalkSetting|#btnDota7Setting|#chatHotkeyBtn|"
    "btn_skillcast_|btn_goods_cast_|::drop-down|::down-arrow";

// What the small pictures were drawn for; large ones have a background of their own.
constexpr char kPictureBackground[] = "#1e242f";

constexpr char kColor[] = "#[0-9A-Fa-f]{3,8}\\b|\\b(white|black|darkgray)\\b";

// What the colours of a rule are for.
struct RuleKind {
  bool isPicture = false;
  bool isChosen = false;    // in the colours of selections
  bool isStressed = false;  // so are at least its lines
  bool isDisabled = false;
  bool isHandle = false;  // of a scroll bar
};

class SystemColors {
 public:
  explicit SystemColors(const QPalette& system)
      : system_(system),
        pictures_(QLatin1String(kPictureControls)),
        color_(QLatin1String(kColor)) {}

  [[nodiscard]] RuleKind kindOf(const QString& selectors) const {
    const auto has = [&](const char* state) { return selectors.contains(QLatin1String(state)); };
    RuleKind kind;
    for (const QString& selector : selectors.split(QLatin1Char(','))) {
      kind.isPicture = selector.contains(pictures_);
      if (!kind.isPicture) break;
    }
    kind.isChosen = has(":selected") || (has("QPushButton") && (has(":hover") || has(":pressed")));
    kind.isStressed = kind.isChosen || has(":focus") || has(":hover");
    kind.isDisabled = has(":disabled");
    kind.isHandle = has("::handle");
    return kind;
  }

  // What the skin leaves to the style, which need not know the colours, and what cannot be seen in
  // them: a thin line in another colour.
  [[nodiscard]] QString additions() const {
    return QStringLiteral(
               "QLineEdit:focus { padding: 2px 3px; border: 2px solid %1; }\n"
               "QLineEdit[holdsKey=\"true\"] { padding: 2px 3px; border: 2px dashed %2; }\n"
               "QCheckBox::indicator, QRadioButton::indicator { width: 7px; height: 7px; "
               "padding: 2px; border: 1px solid %2; background: %3; }\n"
               "QRadioButton::indicator { border-radius: 6px; }\n"
               "QCheckBox::indicator:checked, QRadioButton::indicator:checked { "
               "background-color: %2; background-clip: content; }\n"
               "QCheckBox::indicator:disabled, QRadioButton::indicator:disabled { "
               "border: 1px solid %4; }\n"
               "CMsgBox QPushButton#btnClose, "
               "QPushButton#btnClose, QPushButton#btnCloseNotice, QPushButton#btnClose:focus, "
               "QPushButton#btnCloseNotice:focus { background-color: %5; }\n")
        .arg(stress(), text(), window(), disabledText(), QLatin1String(kPictureBackground));
  }

  // One declaration, "property: value".
  [[nodiscard]] QString declaration(const QString& declared, const RuleKind& kind) const {
    const int colon = declared.indexOf(QLatin1Char(':'));
    if (colon < 0) return declared;
    const QString property = declared.left(colon).trimmed();
    QString value = declared.mid(colon + 1).trimmed();
    const bool isBackground = property.contains(QLatin1String("background"));
    if (kind.isPicture && (isBackground || property == QLatin1String("border-image")))
      return declared;
    if (property == QLatin1String("border-image")) {
      return QStringLiteral("border-image: none; border: 1px solid %1; background: %2; color: %3")
          .arg(lines(kind), kind.isChosen ? stress() : window(),
               kind.isChosen ? chosenText() : text());
    }
    if (isBackground && value.startsWith(QLatin1String("qlineargradient"))) {
      value.replace(QLatin1String("#ffffff"), kind.isChosen ? chosenText() : stress());
    } else if (isBackground && value.startsWith(QLatin1String("url"))) {
      value = QStringLiteral("none");
    }
    return property + QLatin1String(": ") + recolored(value, colorOf(property, kind));
  }

 private:
  [[nodiscard]] QString text() const { return system_.color(QPalette::WindowText).name(); }
  [[nodiscard]] QString stress() const { return system_.color(QPalette::Highlight).name(); }
  [[nodiscard]] QString chosenText() const {
    return system_.color(QPalette::HighlightedText).name();
  }
  [[nodiscard]] QString window() const { return system_.color(QPalette::Window).name(); }
  [[nodiscard]] QString disabledText() const {
    return system_.color(QPalette::Disabled, QPalette::WindowText).name();
  }
  [[nodiscard]] QString lines(const RuleKind& kind) const {
    if (kind.isDisabled) return disabledText();
    return kind.isStressed ? stress() : text();
  }

  [[nodiscard]] QString colorOf(const QString& property, const RuleKind& kind) const {
    if (property == QLatin1String("selection-color")) return chosenText();
    if (property == QLatin1String("selection-background-color")) return stress();
    if (property == QLatin1String("color")) {
      if (kind.isDisabled) return disabledText();
      return kind.isChosen ? chosenText() : text();
    }
    if (!property.contains(QLatin1String("background"))) return lines(kind);
    if (kind.isHandle) return text();
    return kind.isChosen ? stress() : window();
  }

  // Puts the colour in place of all that are not the system's yet.
  [[nodiscard]] QString recolored(QString value, const QString& color) const {
    int from = 0;
    for (auto found = color_.match(value, from); found.hasMatch();
         found = color_.match(value, from)) {
      const bool isSystems = found.captured() == stress() || found.captured() == chosenText();
      const QString replacement = isSystems ? found.captured() : color;
      value.replace(found.capturedStart(), found.capturedLength(), replacement);
      from = found.capturedStart() + replacement.size();
    }
    return value;
  }

  QPalette system_;
  QRegularExpression pictures_, color_;
};

}  // namespace

QString inSystemColors(QString sheet, const QPalette& system) {
  const SystemColors colors(system);
  sheet.remove(QRegularExpression(QStringLiteral("/\\*.*?\\*/"),
                                  QRegularExpression::DotMatchesEverythingOption));
  QString result;
  const QRegularExpression rule(QStringLiteral("([^{}]+)\\{([^{}]*)\\}"));
  for (auto rules = rule.globalMatch(sheet); rules.hasNext();) {
    const QRegularExpressionMatch found = rules.next();
    const QString selectors = found.captured(1).trimmed();
    const RuleKind kind = colors.kindOf(selectors);
    QStringList declarations;
    for (const QString& text : found.captured(2).split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
      if (!text.trimmed().isEmpty()) declarations += colors.declaration(text, kind);
    }
    result += selectors + QLatin1String(" { ") + declarations.join(QLatin1String("; ")) +
              QLatin1String("; }\n");
  }
  result += colors.additions();
  return result;
}

}  // namespace brennet
