#pragma once

#include <qnamespace.h>

#include <cstdint>
#include <vector>

/// The X key symbols that Qt reports as @p key, those of the number pad included. Empty for keys
/// that have none, such as modifiers. Letters give their lower-case symbol.
[[nodiscard]] std::vector<uint32_t> x11KeySymbols(Qt::Key key);

/// True for symbols that number-pad keys carry only while NumLock is on.
[[nodiscard]] bool isNumLockedKeypadSymbol(uint32_t symbol);
/// True for symbols that number-pad keys carry only while NumLock is off.
[[nodiscard]] bool isPlainKeypadSymbol(uint32_t symbol);
