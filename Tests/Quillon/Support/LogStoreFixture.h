// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Stores/LogStore.h"
#include "Quillon/Support/LogText.h"
#include "Quillon/Support/SignalCounter.h"
#include "Quillon/Support/StandIns.h"
#include "Quillon/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::testing {

/// A store whose surroundings are under control, and few words to drive it.
class LogStoreTest : public ::testing::Test {
  protected:
    /// Opens a log of these records, written as for `adi`.
    void openLog(const std::vector<std::string>& records) {
        store.open(folder.write(QStringLiteral("log.adi"), adi(records)));
        told.sent();
    }

    tallyrig::UUID id(std::size_t index) const { return store.document().records()[index].id(); }
    std::string cell(std::size_t index, std::string_view column) const {
        return std::string(store.document().records()[index][column].value_or("(absent)"));
    }
    void type(std::size_t index, const std::string& column, std::string_view text) {
        store.setCell(id(index), column, text);
    }
    /// Selects the records at these positions of the document.
    void select(std::initializer_list<std::size_t> indices) {
        LogStore::Selection ids;
        for (const std::size_t index : indices) {
            ids.insert(id(index));
        }
        store.setSelection(ids, std::nullopt);
        told.sent();
    }

    std::string columns() const { return joined(store.columns()); }
    /// The values of a column from the first row on screen to the last.
    std::string shown(std::string_view column = "CALL") const {
        std::vector<std::string> values;
        for (std::size_t row = 0; row < store.displayedCount(); ++row) {
            values.emplace_back(store.displayedRecord(row)[column].value_or("-"));
        }
        return joined(values);
    }
    /// The values of CALL in the selected records, in the order of the document.
    std::string selected() const {
        std::vector<std::string> values;
        for (const tallyrig::ADIFRecord& record : store.document().records()) {
            if (store.selection().contains(record.id())) {
                values.emplace_back(record.valueOrEmpty("CALL"));
            }
        }
        return joined(values);
    }
    std::string error() const {
        return store.errorMessage().value_or(QStringLiteral("(none)")).toStdString();
    }
    std::string title() const { return store.windowTitle().toStdString(); }

    static std::string joined(const std::vector<std::string>& texts) { return testing::joined(texts); }

    TemporaryFolder folder;
    MemorySettings settings;
    ScriptedPanels panels;
    FixedMeasurer measurer;
    NotingFileManager fileManager;
    LogStore store{settings, panels, measurer, fileManager};
    SignalCounter told{store};
};

}  // namespace quillon::testing
