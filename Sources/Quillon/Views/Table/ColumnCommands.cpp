// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Views/Table/ColumnCommands.h"

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Views/Controls/Strings.h"
#include "Quillon/Views/Table/TableQuestions.h"
#include "Tallyrig/Text/Text.h"
#include "Tallyrig/Validation/ADIFSpec317.h"

#include <algorithm>
#include <array>
#include <cstddef>

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

bool commitRename(LogStore& store, TableQuestions& questions, std::string_view column,
                  std::string_view draft) {
    const std::string newName = text::upper(text::trimmedOfBlanks(draft));
    const std::string oldName = text::upper(column);
    if (newName.empty() || text::equal(newName, oldName)) {
        return true;
    }
    if (!LogStore::isValidFieldName(newName)) {
        store.setErrorMessage(LogStore::invalidFieldNameMessage(newName));
        return false;
    }
    if (store.columnExists(newName)) {
        store.setErrorMessage(QStringLiteral("Die Spalte %1 gibt es bereits.").arg(toQString(newName)));
        return false;
    }
    if (tallyrig::ADIFSpec::fields().contains(oldName) &&
        !questions.confirmRename(toQString(oldName), toQString(newName), recordsHolding(store, oldName))) {
        return true;
    }
    store.renameColumn(oldName, newName);
    return true;
}

bool addCustomColumn(LogStore& store, std::string_view name) {
    if (store.addColumn(name) || text::trimmed(name).empty() ||
        store.columnExists(LogStore::cleanedFieldName(name))) {
        return true;
    }
    store.setErrorMessage(LogStore::invalidFieldNameMessage(name));
    return false;
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

}  // namespace quillon
