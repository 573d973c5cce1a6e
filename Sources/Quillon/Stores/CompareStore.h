// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Catalogue/ComparisonKey.h"
#include "Quillon/Platform/Panels.h"
#include "Quillon/Platform/Settings.h"
#include "Quillon/Stores/KnownFile.h"
#include "Quillon/Stores/StoreState.h"
#include "Quillon/Stores/TextBinding.h"
#include "Tallyrig/Analysis/ADIFComparison.h"
#include "Tallyrig/Log/ADIFDocument.h"
#include "Tallyrig/Log/UUID.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillon {

/// A log that the comparison has loaded for one of its sides.
struct ComparedFile {
    tallyrig::ADIFDocument document;
    QString name;                ///< Empty for one without a file.
    std::optional<QString> url;  ///< The path where it came from or went to.
    bool isDirty = false;        ///< It has edits that are not saved.
    /// The file as it was read or written; absent for one that saving may replace as it is.
    std::optional<KnownFile> known = {};
};

/// Which two logs are compared, and by which fields their QSOs are paired. On the right stands a file of this
/// store, on the left another or, while there is none, the open log, which is not the store's. It lives as
/// long as the program runs; nothing of it is kept on disk.
///
/// Each property has one change signal, sent when the change is whole and only if the value is another one. A
/// log that is equal to the one in its place does not take that: the records keep their ids.
class CompareStore : public QObject {
    Q_OBJECT

  public:
    using Side = tallyrig::ADIFComparison::Side;

    /// Both outlive the store.
    CompareStore(const Settings& userSettings, Panels& userPanels, QObject* parent = nullptr);

    /// The kinds of files that the panels offer: ADIF text and plain text.
    static const QList<FileType>& adifContentTypes();

    // The sides.
    const tallyrig::ADIFDocument& rightDoc() const { return state.right.document; }
    /// "—" before a file is loaded.
    const QString& rightName() const { return state.right.name; }
    const std::optional<QString>& rightURL() const { return state.right.url; }
    bool rightDirty() const { return state.right.isDirty; }
    bool hasRightFile() const { return state.right.url.has_value(); }
    void setRight(ComparedFile file);
    /// Null while the open log stands on the left. Good until the left side changes.
    const ComparedFile* leftFile() const { return state.left ? &*state.left : nullptr; }
    /// Without a file the open log stands on the left again.
    void setLeftFile(std::optional<ComparedFile> file);

    /// The names of the fields in upper case.
    const std::vector<std::string>& keyFields() const { return state.keyFields; }

    /// Compares the left side, `currentLog` while there is no file, with the right one; the store does not
    /// keep the result. Cost: `ADIFComparator::compare`.
    tallyrig::ADIFComparison comparison(const tallyrig::ADIFDocument& currentLog) const;
    /// What stands on the left while `currentLog` is the open log.
    const tallyrig::ADIFDocument& leftDoc(const tallyrig::ADIFDocument& currentLog) const;

    // Files. What the user loads is read as ADI text, whatever it is.
    /// Asks for the file; nothing happens if the user cancels.
    void loadRight();
    void loadLeftFile();
    /// A file that cannot be read changes nothing and is not told of.
    void load(Side side, const QString& path);
    /// As `load`, but in the format that the file is in. A side has its place there only if that is ADI text:
    /// saved, it would replace the file by such.
    void loadInItsFormat(Side side, const QString& path);
    /// Writes the side to its file, or asks for one if it has none; nothing happens if the user cancels. On
    /// failure only `errorMessage` changes. A file that is not what was loaded or saved last stays, and
    /// `errorMessage` says so; to save once more replaces it.
    void saveRight();
    /// Does nothing while the open log stands on the left.
    void saveLeftFile();
    /// `keep` is called with the path before a side is saved there, whether or not there is a file.
    void beforeReplacing(std::function<void(const QString& path)> keep) { keepFormer = std::move(keep); }
    /// What the user must be told; absent once it was.
    const std::optional<QString>& errorMessage() const { return state.errorMessage; }
    void setErrorMessage(std::optional<QString> message);

    // Cells. A record that the side does not hold reads as empty, and writing to it does nothing, as does
    // writing what is there already. An empty text removes the field. `column` is in upper case.
    TextBinding rightBinding(tallyrig::UUID recordID, const std::string& column);
    TextBinding leftBinding(tallyrig::UUID recordID, const std::string& column);

  signals:
    void rightDocChanged();
    void rightNameChanged();
    void rightURLChanged();
    void rightDirtyChanged();
    /// The log of the left file, or whether there is one.
    void leftFileChanged();
    void leftFileNameChanged();
    void leftURLChanged();
    void leftFileDirtyChanged();
    void errorMessageChanged();
    /// A side was saved to `path`, whether or not it had changes.
    void written(const QString& path);
    /// Another log took the place of one with edits that were not saved.
    void editsLost(const QString& name);

  private:
    struct Observed {
        ComparedFile right;
        std::optional<ComparedFile> left;
        std::vector<std::string> keyFields = usualComparisonKey();
        std::optional<QString> errorMessage;
    };
    using Changes = StoreState<CompareStore, Observed>;

    static std::span<const Changes::Property> observedProperties();

    ComparedFile* fileOf(Side side);
    void loadWithPanel(Side side);
    void place(Side side, ComparedFile file);
    void save(Side side, const QString& proposedName);
    /// False if the file was not written.
    bool replaceWith(const std::string& content, const QString& path, ComparedFile& file);
    TextBinding binding(Side side, tallyrig::UUID recordID, const std::string& column);
    void setCell(Side side, tallyrig::UUID recordID, const std::string& column, std::string_view value);

    const Settings& settings;
    Panels& panels;
    std::function<void(const QString& path)> keepFormer;
    Observed state;
    Changes changes{*this, state, observedProperties()};
};

}  // namespace quillon
