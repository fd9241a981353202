#pragma once

#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QUrl>

class QFileDialog;

/// Lets the user choose one existing file, in the desktop's own dialog where it has one. Qt Quick's
/// dialog is no choice: the software renderer leaves its background out.
class PictureDialog : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title MEMBER m_title FINAL)
    Q_PROPERTY(QString acceptLabel MEMBER m_acceptLabel FINAL)
    Q_PROPERTY(QString rejectLabel MEMBER m_rejectLabel FINAL)
    /// Such as "Image files (*.png *.jpg)".
    Q_PROPERTY(QString nameFilter MEMBER m_nameFilter FINAL)

public:
    explicit PictureDialog(QObject *parent = nullptr);
    ~PictureDialog() override;

    /// Does not wait; a dialog that is open already comes to the front.
    Q_INVOKABLE void open();

signals:
    void accepted(const QUrl &file);

private:
    QString m_title;
    QString m_acceptLabel;
    QString m_rejectLabel;
    QString m_nameFilter;
    QPointer<QFileDialog> m_dialog; ///< while it is open
    QUrl m_folder; ///< where the last choice was made
};
