#pragma once

class QLineEdit;

namespace brennet {

// Gives a field for a phrase the menu to edit its text, in the skin and the language of its window,
// in the place of Qt's own.
void offerPhraseMenu(QLineEdit& field);

}  // namespace brennet
