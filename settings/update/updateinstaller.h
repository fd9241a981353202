#pragma once

#include <QCoreApplication>
#include <QLockFile>
#include <QString>
#include <QStringList>

/// Puts new files into the program's folder: all of them, or none.
///
/// They are gathered in a folder beside the program's own files, on the same disk, and then take
/// their places by renaming, while what was there is kept aside. A journal on the disk tells,
/// should the machine stop halfway, what to put back. Names are relative, with "/" between folders,
/// and have been checked to stay below the program's folder. One object at a time, by a lock, also
/// among several running programs. Functions block while the disk works; they may be called from
/// any thread, one at a time.
class UpdateInstaller
{
    Q_DECLARE_TR_FUNCTIONS(UpdateInstaller)

public:
    /// Of the program in `folder`.
    explicit UpdateInstaller(const QString &folder);
    /// What was gathered and not installed goes.
    ~UpdateInstaller();
    Q_DISABLE_COPY_MOVE(UpdateInstaller)

    /// Makes room to gather files. An empty text, or why not.
    [[nodiscard]] QString begin();
    /// Where the new file called `name` is to be written; its folder is there. Empty when that
    /// cannot be made.
    [[nodiscard]] QString stagedPath(const QString &name) const;
    /// Has all the gathered files take their places; `program` among them, or one that was there
    /// before, is made executable. An empty text, or why not: then every file is what it was,
    /// unless the text says otherwise.
    [[nodiscard]] QString install(const QStringList &names, const QString &program);

    enum class Recovery { NotNeeded, Done, Failed };
    /// Puts back what an installation that did not come to its end had replaced. To be called at
    /// the start of the program in `folder`.
    static Recovery recover(const QString &folder);

    /// Whether `name` lies where this class keeps its own files.
    [[nodiscard]] static bool isReserved(const QString &name);

private:
    [[nodiscard]] QString prepare(const QStringList &names, const QString &program);
    [[nodiscard]] QString checkPlace(const QString &name) const;
    [[nodiscard]] QString adoptPermissions(const QString &name, bool isProgram) const;
    [[nodiscard]] QString swap();
    void keepFormer() const;
    bool rollBack();
    bool readJournal();
    void clear();

    [[nodiscard]] QString inFolder(const QString &name) const;
    [[nodiscard]] QString fresh(const QString &name) const;
    [[nodiscard]] QString former(const QString &name) const;
    [[nodiscard]] QString journal() const;

    QString m_folder;
    QLockFile m_lock;
    /// What the journal says: each file and whether there was one before, each folder made for one.
    struct Plan {
        QStringList replaced;
        QStringList added;
        QStringList madeFolders; ///< the outer before the inner
        [[nodiscard]] QStringList names() const { return replaced + added; }
    } m_plan;
};
