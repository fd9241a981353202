#include "platform/overlay/picturedialog.h"

#include <QFileDialog>
#include <QStandardPaths>

PictureDialog::PictureDialog(QObject *parent)
    : QObject(parent), m_folder(QUrl::fromLocalFile(
                           QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)))
{
}

PictureDialog::~PictureDialog()
{
    delete m_dialog;
}

void PictureDialog::open()
{
    if (!m_dialog) {
        m_dialog = new QFileDialog;
        // Its list of completions may still be under way, and would hold the pointer.
        m_dialog->setAttribute(Qt::WA_DeleteOnClose);
        m_dialog->setFileMode(QFileDialog::ExistingFile);
        m_dialog->setWindowFlag(Qt::WindowStaysOnTopHint);
        connect(m_dialog, &QFileDialog::accepted, this, [this] {
            const QUrl file = m_dialog->selectedUrls().value(0);
            m_folder = file.adjusted(QUrl::RemoveFilename);
            emit accepted(file);
        });
    }
    // Every time: the interface's language may have changed.
    m_dialog->setWindowTitle(m_title);
    m_dialog->setLabelText(QFileDialog::Accept, m_acceptLabel);
    m_dialog->setLabelText(QFileDialog::Reject, m_rejectLabel);
    m_dialog->setLabelText(QFileDialog::LookIn, tr("查找位置："));
    m_dialog->setLabelText(QFileDialog::FileName, tr("文件名："));
    m_dialog->setLabelText(QFileDialog::FileType, tr("文件类型："));
    m_dialog->setNameFilter(m_nameFilter);
    if (!m_dialog->isVisible())
        m_dialog->setDirectoryUrl(m_folder);
    m_dialog->show();
    m_dialog->raise();
    m_dialog->activateWindow();
}
