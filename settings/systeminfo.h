#pragma once

#include "platform/systemmemory.h"

#include <QString>
#include <QStringList>

/// One line about the machine, its parts joined by "|", as the update service expects it: operating
/// system, kernel, processor, host, screens and, where the system tells it, memory.
[[nodiscard]] QString systemDescription();

/// The two parts about memory: whole mebibytes, and the same in gibibytes with two decimals.
[[nodiscard]] QStringList memoryDescription(const SystemMemory &memory);
