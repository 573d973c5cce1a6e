// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tallyrig/Log/ADIFField.h"
#include "Tallyrig/Log/ADIFRecordList.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tallyrig {

/// Whether a column operation touches the records that hold a value already.
enum class ColumnTarget { allRecords, emptyOnly };

/// A log of any format: a comment, header fields and the QSOs in file order.
///
/// A value that copies in constant time; copies share their storage until one of them is changed. Column
/// operations touch records only, never the header.
class ADIFDocument {
  public:
    /// The empty document: no comment, no header fields, no records.
    ADIFDocument();
    ADIFDocument(std::string headerComment, std::vector<ADIFField> headerFields, ADIFRecordList records);

    /// Free text in front of the first tag of an ADIF file; empty if there is none.
    const std::string& headerComment() const { return header->comment; }
    void setHeaderComment(std::string comment);
    const std::vector<ADIFField>& headerFields() const { return header->fields; }
    void setHeaderFields(std::vector<ADIFField> fields);
    const ADIFRecordList& records() const { return recordList; }
    ADIFRecordList& records() { return recordList; }

    /// The distinct names in the records as they are stored, in order of first appearance. Empty for a log
    /// without fields. Cost: one pass over all fields.
    std::vector<std::string> fieldNames() const;

    /// `ADIFRecord::renameField` on each record.
    void renameColumn(std::string_view from, std::string_view to);
    /// `ADIFRecord::duplicateField` on each record.
    void duplicateColumn(std::string_view name, std::string_view as);
    /// `ADIFRecord::removeField` on each record.
    void removeColumn(std::string_view name);
    /// Sets the column in each record and returns the number of records changed. An empty `value` removes the
    /// field where it holds something; a record that holds it with an empty value stays as it is.
    std::size_t setColumn(std::string_view name, std::string_view value, ColumnTarget target);
    /// Replaces every occurrence of `find` in the column, literally and by code points, and returns the
    /// number of records in which it was found. An empty `find` does nothing. A value that becomes empty
    /// stays as a field.
    std::size_t replaceInColumn(std::string_view name, std::string_view find, std::string_view replacement);

    /// The number of records that have no such field or an empty value in it.
    std::size_t countWithoutValue(std::string_view column) const;
    /// The number of records whose value in the column contains `find`, as `replaceInColumn` understands it;
    /// 0 for an empty `find`.
    std::size_t countContaining(std::string_view column, std::string_view find) const;

    /// Whether both are copies of one document, unchanged: true only if they are equal, and at once.
    bool isSameAs(const ADIFDocument& other) const {
        return header == other.header && recordList.isSameAs(other.recordList);
    }
    /// Equal comments, header fields and records; ids are ignored.
    friend bool operator==(const ADIFDocument& left, const ADIFDocument& right);

  private:
    struct Header {
        std::string comment;
        std::vector<ADIFField> fields;
    };

    std::shared_ptr<const Header> header;
    ADIFRecordList recordList;
};

}  // namespace tallyrig
