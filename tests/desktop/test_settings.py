"""The settings window: folder, language with restart, hot keys that change at once."""

import os

from Xlib import X, XK, error

import desktop
from desktop.capturing import ACCENT, store_settings

CONFLICT = (250, 85, 85)
# Rows of the window, from its top; the folder's button and the pickers' boxes are at the right, where
# the palette leaves them free.
FOLDER_Y, LANGUAGE_Y, FIRST_PICKER_Y, PICKER_PITCH = 57, 104, 155, 55
PICKERS = ("screenKey", "penKey", "closeDrawKey", "eraseKey", "textKey", "clearKey", "lineKey",
           "circleKey")
BOX_X, BROWSE_X, TEXT_X, SAVE = 290, 310, 200, (310, 403)
# Within a message, left of its text.
MESSAGE, FAILURE = (60, 100), (253, 231, 233)
CHOSEN_LANGUAGE, BLUE = (84, 205), (0, 102, 180)


class SettingsTest(desktop.DesktopTestCase):

    # One test has another program hold a key.
    expected_warning = r"^Hot key Ctrl\+O is held by another program"

    def launch(self):
        self.program = self.start()
        self.palette = desktop.Palette(self.desktop, self.program)
        self.palette.window

    def open_settings(self, title="设置"):
        self.palette.choose("menu", "settings")
        self.window = self.program.window(title=title)
        self.wait_for(lambda: self.desktop.windows.active == self.window, "the keyboard")

    def click(self, x, y):
        point = self.window.at(x, y)
        self.wait_for(lambda: self.desktop.windows.at(*point) == self.window, "the window on top")
        self.desktop.pointer.click(*point)

    def open_picker(self, key):
        edge = self.window.at(5, 300)
        self.wait_for_pixel(*edge, lambda colour: min(colour) > 250, "a former dialog to go")
        self.click(BOX_X, FIRST_PICKER_Y + PICKERS.index(key) * PICKER_PITCH)
        self.wait_for_pixel(*edge, lambda colour: max(colour) < 200, "the dialog to open")

    def save(self, key, keys):
        self.click(*SAVE)
        self.program.wait_for_log(f"保存设置: {key} {keys}")

    def is_free(self, key):
        """Whether another program can have Ctrl and the key."""
        display = self.desktop.display
        root = display.screen().root
        code = display.keysym_to_keycode(XK.string_to_keysym(key))
        refused = error.CatchError(error.BadAccess)
        root.grab_key(code, X.ControlMask, True, X.GrabModeAsync, X.GrabModeAsync,
                      onerror=refused)
        display.sync()
        if refused.get_error():
            return False
        root.ungrab_key(code, X.ControlMask)
        display.sync()
        return True

    def test_a_changed_hot_key_works_at_once_and_after_a_restart(self):
        document = self.desktop.open_window("Document", (60, 90, 400, 300))
        self.launch()
        self.assertFalse(self.is_free("e"))
        self.open_settings()
        # The pen's present key does not fire in a picker: it is what the eraser gets.
        self.open_picker("eraseKey")
        self.desktop.keyboard.tap("Ctrl+E")
        self.save("eraseKey", "Ctrl+E")
        self.open_picker("penKey")
        self.desktop.keyboard.tap("Ctrl+Shift+F")
        self.save("penKey", "Ctrl+Shift+F")
        self.open_picker("eraseKey")
        self.desktop.keyboard.tap("Ctrl+D")
        self.save("eraseKey", "Ctrl+D")
        self.assertIsNone(self.palette.overlay)

        for start in (lambda: None, self.launch_again):
            start()
            self.wait_for(lambda: self.is_free("e"), "the old key to be free")
            self.desktop.pointer.click(*document.window.centre)
            self.wait_for(lambda: self.desktop.windows.active == document.window, "the keyboard")
            typed = len(document.keys)
            self.desktop.keyboard.tap("Ctrl+E")
            self.wait_for(lambda: len(document.keys) == typed + 2, "the old key in the document")
            self.desktop.keyboard.tap("Ctrl+Shift+F")
            self.wait_for(lambda: self.palette.overlay and self.palette.overlay.takes_pointer,
                          "the new key to start the pen")

    def launch_again(self):
        self.program.stop()
        self.launch()

    def test_a_key_of_another_program_is_marked(self):
        root = self.desktop.display.screen().root
        root.grab_key(self.desktop.display.keysym_to_keycode(XK.XK_o), X.ControlMask, True,
                      X.GrabModeAsync, X.GrabModeAsync)
        self.desktop.display.sync()
        self.launch()
        self.open_settings()
        rect = self.window.geometry

        def marked(key):
            top = FIRST_PICKER_Y + PICKERS.index(key) * PICKER_PITCH - 20
            row = self.desktop.screen.shot((rect.x + 200, rect.y + top, 185, 40))
            return any(desktop.near(colour, CONFLICT) for _, colour in row.getcolors(10000))
        self.wait_for(lambda: marked("circleKey"), "the mark at the key that is taken")
        self.assertFalse(marked("lineKey"))
        self.open_picker("circleKey")
        self.desktop.keyboard.tap("Ctrl+Shift+O")
        self.save("circleKey", "Ctrl+Shift+O")
        self.wait_for(lambda: not marked("circleKey"), "the mark to go")

    def test_the_folder_is_typed_or_chosen_whatever_its_name(self):
        typed = os.path.join(self.desktop.home, "my 课件")
        chosen = os.path.join(self.desktop.home, "录像 of #2")
        os.makedirs(chosen)
        self.launch()
        self.open_settings()
        self.click(TEXT_X, FOLDER_Y)
        self.desktop.keyboard.tap("Home", "Shift+End")
        self.desktop.keyboard.type(typed + "\n")
        self.program.wait_for_log(f"保存设置: screenSavePath {typed}")
        self.click(BROWSE_X, FOLDER_Y)
        dialog = self.program.window(title="选择保存目录")
        self.wait_for(lambda: self.desktop.windows.active == dialog, "the keyboard")
        overlapped = dialog.at(dialog.geometry.width - 20, dialog.geometry.height // 2)
        self.wait_for(lambda: self.desktop.windows.at(*overlapped) == dialog, "it on top")
        self.desktop.keyboard.tap("Home", "Shift+End")
        self.desktop.keyboard.type(chosen + "\n")
        self.program.wait_for_log(f'已选择并保存目录路径: "{chosen}"')
        self.program.wait_for_log(f'"screenSavePath":"{chosen}"')

    def test_a_choice_that_cannot_be_stored_is_told(self):
        os.makedirs(os.path.join(self.desktop.home, ".config/korvath/settings.conf"))
        chosen = os.path.join(self.desktop.home, "chosen")
        os.makedirs(chosen)
        self.launch()
        self.open_settings()
        self.click(BROWSE_X, FOLDER_Y)
        dialog = self.program.window(title="选择保存目录")
        self.wait_for(lambda: self.desktop.windows.active == dialog, "the keyboard")
        self.desktop.keyboard.tap("Home", "Shift+End")
        self.desktop.keyboard.type(chosen + "\n")
        self.wait_for_pixel(*self.window.at(*MESSAGE), lambda colour: desktop.near(colour, FAILURE),
                            "the message that it could not be stored")

    def test_another_language_restarts_the_program(self):
        store_settings(self.desktop.home, lineKey="F8", undoKey="F9")
        self.launch()
        self.open_settings()
        self.click(TEXT_X, LANGUAGE_Y)
        self.wait_for_pixel(*self.window.at(*CHOSEN_LANGUAGE),
                            lambda colour: desktop.near(colour, BLUE), "the list to open")
        self.desktop.keyboard.tap("Home", "Return")  # British English
        apply = BROWSE_X, LANGUAGE_Y - 10
        self.wait_for_pixel(*self.window.at(*apply), lambda colour: desktop.near(colour, ACCENT),
                            "the button that applies it")
        self.click(*apply)
        self.assertEqual(self.program.wait_for_end(), 0)

        window = self.desktop.wait_for_window(title="Main window")
        with open(f"/proc/{window.pid}/cmdline", "rb") as command:
            self.assertEqual(command.read().split(b"\0")[1:], [b"--restart", b""])
        # It has the name: one more start hands over to it.
        self.assertEqual(self.start().wait_for_end(), 0)
        self.assertEqual([found.pid for found in self.desktop.windows.all(title="Main window")],
                         [window.pid])
        with open(os.path.join(self.desktop.home, ".config/korvath/settings.conf"),
                  encoding="utf-8") as file:
            stored = file.read()
        for line in ("appLanguage=en_GB", "lineKey=F8", "undoKey=F9"):
            self.assertIn(line, stored)


if __name__ == "__main__":
    desktop.main()
