#pragma once

#include <memory>

namespace brennet {

// A Qt Designer form, set up on its window or page. For the initialiser of the member that holds
// it, as other members need the widgets of the form.
template <class Form, class Window>
[[nodiscard]] std::unique_ptr<Form> formOn(Window& window) {
  auto form = std::make_unique<Form>();
  form->setupUi(&window);
  return form;
}

}  // namespace brennet
