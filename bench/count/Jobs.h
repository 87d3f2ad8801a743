#pragma once

namespace brennet::bench {

// The jobs whose instructions are counted, a function for each part of the component.
void countMarkup();
void countSettings();
void countDialog();  // needs an application

}  // namespace brennet::bench
