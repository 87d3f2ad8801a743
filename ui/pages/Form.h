#pragma once

#include <memory>

namespace brennet {

// A form of Qt Designer's, set up on the window or page that it belongs to: for the initialiser of
// the member that keeps it, as other members need what is on the form.
template <class Form, class Window>
[[nodiscard]] std::unique_ptr<Form> formOn(Window& window) {
  auto form = std::make_unique<Form>();
  form->setupUi(&window);
  return form;
}

}  // namespace brennet
