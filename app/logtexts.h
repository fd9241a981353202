#pragma once

/// The texts of the start-up's log lines; values follow each on the stream.
namespace StartupLogTexts
{

inline constexpr char kOpenSslVersion[] = "OpenSSL version: ";
inline constexpr char kOpenGlRenderer[] = "OpenGL renderer:";
inline constexpr char kOpenGlVersion[] = "OpenGL version:";
inline constexpr char kSoftwareRendererFound[] =
    "Detected software OpenGL renderer, using software rendering mode";
inline constexpr char kHardwareRendererFound[] =
    "Hardware OpenGL acceleration available, using hardware rendering";
inline constexpr char kUsingHardware[] = "Using hardware OpenGL acceleration";
inline constexpr char kForcingSoftware[] = "Forcing software OpenGL rendering";
inline constexpr char kNoSystemTray[] = "No system tray available!";

} // namespace StartupLogTexts
