#pragma once

#include <QString>

class QQmlContext;

/// The steps of the start that need no object of their own.
namespace Startup
{

void initialiseOpenSsl();

/// Every window gets an alpha channel, which the see-through overlay needs.
void requestTranslucentWindows();

void setIdentity();

/// The stored language; else the system's, if there is a catalogue for it; else the source
/// language.
[[nodiscard]] QString chooseLanguage();

/// What the documents know the program by, and the object that tells them of a new language.
void publishToDocuments(QQmlContext &rootContext);

} // namespace Startup
