#pragma once

#include <QString>

class QCoreApplication;

/// Where the catalogues lie beside the executable.
[[nodiscard]] QString translationsDirectory();

/// Replaces the installed catalogue by "app_" + `code` + ".qm" from the folder beside the
/// executable and tells the `LanguageManager`. When it cannot be loaded the interface falls back to
/// its source language and nobody is told. `application` owns the translator.
void loadTranslation(QCoreApplication *application, const QString &code);

/// loadTranslation() on the running application. False, without loading, when that is no
/// QApplication; true otherwise, whether or not the catalogue could be loaded.
bool applyLanguage(const QString &language);
