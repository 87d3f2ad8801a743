#include "tests/ui/screens/TestScreenReader.h"

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <algorithm>

namespace brennet::test {
namespace {

using Told = std::pair<const QObject*, QAccessible::Event>;

// Qt's handler is a plain function.
std::vector<Told>& told() {
  static std::vector<Told> events;
  return events;
}

// As the platform does when such a program asks for the windows.
void setActive(bool isActive) {
  QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(isActive);
}

}  // namespace

TestScreenReader::TestScreenReader() : wasActive_(QAccessible::isActive()) {
  told().clear();
  before_ = QAccessible::installUpdateHandler(
      [](QAccessibleEvent* event) { told().emplace_back(event->object(), event->type()); });
  setActive(true);
}

TestScreenReader::~TestScreenReader() {
  setActive(wasActive_);
  QAccessible::installUpdateHandler(before_);
}

bool TestScreenReader::wasTold(const QObject& object, QAccessible::Event event) {
  return std::ranges::find(told(), Told(&object, event)) != told().end();
}

}  // namespace brennet::test
