#pragma once

#include <QString>
#include <cstdint>

// The key in a block field in readable form, for example "Alt+Q"; "-" for no key.
QString keyText(std::uint16_t key);
