#pragma once

class QLineEdit;

namespace brennet {

// Gives a field for a phrase an edit menu in the skin and the language of its window, instead of
// Qt's own.
void offerPhraseMenu(QLineEdit& field);

}  // namespace brennet
