#pragma once

/// The folder of the user's own files, from which Qt derives where settings and pictures go.
/// Without one it would take the root of the file system.
namespace UserHome
{

/// Gives this process the home folder of the user's account when the session named none, or one
/// that is not there. To be called before anything asks for a folder.
void adopt();

/// False when the user has no home folder: then nothing may be written to what is derived from it.
[[nodiscard]] bool exists();

/// The same for settings, which may lie elsewhere.
[[nodiscard]] bool hasConfiguration();

} // namespace UserHome
