// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace quillon {

class Settings;

/// The logs that the user had last, kept in the settings, where all programs of the user share them.
class RecentFiles {
  public:
    static constexpr qsizetype mostFiles = 10;

    /// The settings outlive the object.
    explicit RecentFiles(Settings& userSettings) : settings(userSettings) {}

    /// The newest first, none twice, at most `mostFiles`. The files may be gone. Cost: no file is looked at.
    QStringList paths() const;
    /// `path` is absolute, and its file there.
    void add(const QString& path);
    void clear();

  private:
    Settings& settings;
};

/// The folders whose files do not last: those for temporary files, for what can be made anew, and for what
/// the program itself keeps. As the system finds them, without links; those that there are.
QStringList foldersOfPassingFiles();

/// Whether the file at `path` lies in or below one of `folders`.
bool liesIn(const QStringList& folders, const QString& path);

/// A name for each of the paths, which are all different: that of the file, and where several files have the
/// same, behind it as much of the folder's end as tells them apart, such as "log.adi – 2024/mai".
QStringList distinctNames(const QStringList& paths);

}  // namespace quillon
