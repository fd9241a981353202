#pragma once

#include <QKeyCombination>
#include <QObject>

/// One owner's hot key. While it is bound, pressing the combination anywhere on the desktop
/// activates it. Several objects may be bound to one combination: all of them are activated.
///
/// Keys with which people type (see isTypingKey()) are not taken from other programs: they work in
/// the program's own windows, pass on to the item with the focus and rest while that is a text
/// editor. While a text editor of the program has the focus, Ctrl+A, Ctrl+Z and their like belong
/// to it. Where the desktop refuses a combination it still works in the program's own windows.
///
/// Use on the GUI thread, after the QGuiApplication was made.
class GlobalHotKey : public QObject
{
    Q_OBJECT

public:
    explicit GlobalHotKey(QObject *parent = nullptr);
    ~GlobalHotKey() override;

    /// Releases the former combination, then takes this one. Returns isRegistered(); a refusal is
    /// logged with its reason. A combination held by another program is not tried again by itself.
    bool bind(QKeyCombination keys);
    /// Releases the combination.
    void unbind();

    /// True while the combination is in force: no other program holds it and the keyboard has it.
    [[nodiscard]] bool isRegistered() const;

Q_SIGNALS:
    /// Sent from the event loop, once for each physical press.
    void activated();
    /// The keyboard layout or another program gave or took the keys; not sent by bind(), unbind().
    void registeredChanged(bool registered);
};

/// Gives all combinations back to the desktop as long as one such object lives, so that the
/// program's own windows receive them as ordinary key presses. isRegistered() stays as it was.
class GlobalHotKeySuspension
{
public:
    GlobalHotKeySuspension();
    ~GlobalHotKeySuspension();
    Q_DISABLE_COPY_MOVE(GlobalHotKeySuspension)
};
