#pragma once

#include <QString>

/// One line about the machine, its parts joined by "|", as the update service expects it: operating
/// system, kernel, processor, host, screens and, where the system tells it, memory.
[[nodiscard]] QString systemDescription();
