#pragma once

/// Chooses the window system before the application object exists. In a Wayland session that also
/// offers an X server, the X server is taken: the palette needs window positions, stacking above
/// other programs and system-wide key grabs. A platform that the user chose stays.
void chooseWindowSystem();
