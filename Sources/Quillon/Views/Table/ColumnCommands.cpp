#include "Quillon/Views/Table/ColumnCommands.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Icons.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Table/TableQuestions.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Validation/ADIFSpec317.h"

#include <QMenu>

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace quillon {
namespace {

namespace text = tallyrig::text;

constexpr std::array offeredFields = {"CALL",
                                      "QSO_DATE",
                                      "TIME_ON",
                                      "TIME_OFF",
                                      "BAND",
                                      "MODE",
                                      "SUBMODE",
                                      "FREQ",
                                      "RST_SENT",
                                      "RST_RCVD",
                                      "GRIDSQUARE",
                                      "NAME",
                                      "QTH",
                                      "COMMENT",
                                      "TX_PWR",
                                      "OPERATOR",
                                      "STATION_CALLSIGN",
                                      "MY_GRIDSQUARE",
                                      "DXCC",
                                      "COUNTRY",
                                      "CONT",
                                      "CQZ",
                                      "ITUZ",
                                      "STATE",
                                      "QSL_SENT",
                                      "QSL_RCVD"};

std::size_t recordsHolding(const LogStore& store, std::string_view field) {
    const tallyrig::ADIFRecordList& records = store.document().records();
    return static_cast<std::size_t>(
        std::count_if(records.begin(), records.end(),
                      [field](const tallyrig::ADIFRecord& record) { return record.has(field); }));
}

}  // namespace

void commitRename(LogStore& store, TableQuestions& questions, std::string_view column,
                  std::string_view draft) {
    const std::string newName = text::upper(text::trimmedOfBlanks(draft));
    const std::string oldName = text::upper(column);
    if (newName.empty() || text::equal(newName, oldName)) {
        return;
    }
    if (!LogStore::isValidFieldName(newName)) {
        store.setErrorMessage(LogStore::invalidFieldNameMessage(newName));
        return;
    }
    if (store.columnExists(newName)) {
        store.setErrorMessage(QStringLiteral("Die Spalte %1 gibt es bereits.").arg(toQString(newName)));
        return;
    }
    if (tallyrig::ADIFSpec::fields().contains(oldName) &&
        !questions.confirmRename(toQString(oldName), toQString(newName), recordsHolding(store, oldName))) {
        return;
    }
    store.renameColumn(oldName, newName);
}

void addCustomColumn(LogStore& store, std::string_view name) {
    if (store.addColumn(name) || text::trimmed(name).empty()) {
        return;
    }
    if (!store.columnExists(LogStore::cleanedFieldName(name))) {
        store.setErrorMessage(LogStore::invalidFieldNameMessage(name));
    }
}

std::vector<std::string> fieldsToAdd(const LogStore& store) {
    std::vector<std::string> fields;
    for (const char* field : offeredFields) {
        if (!store.columnExists(field)) {
            fields.emplace_back(field);
        }
    }
    return fields;
}

void addColumnCommands(QMenu& menu, LogStore& store, const std::string& column,
                       std::function<void()> rename) {
    const auto add = [&menu](const char* title, const char* iconName, auto action) {
        menu.addAction(icon(toQString(iconName)), toQString(title), &menu, std::move(action));
    };
    add("Umbenennen", "edit-rename", std::move(rename));
    add("Spalte duplizieren", "edit-duplicate", [&store, column] { store.duplicateColumn(column); });
    add("Breite an Inhalt anpassen", "resizecol", [&store, column] { store.autoFitColumns({column}); });
    add("Alle Spalten an Inhalt anpassen", "zoom-fit-width", [&store] { store.autoFitColumns(); });
    add("Alle Werte ändern …", "tools-wizard", [&store, column] { store.setBulkEditColumn(column); });
    menu.addSeparator();
    add("Nach links", "arrow-left", [&store, column] { store.moveColumnBy(column, -1); });
    add("Nach rechts", "arrow-right", [&store, column] { store.moveColumnBy(column, 1); });
    menu.addSeparator();
    add("Spalte löschen", "edit-delete", [&store, column] { store.removeColumn(column); });
}

}  // namespace quillon
