#pragma once

#include <cstddef>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quillmark {

/// Sequential record files: comma-separated items, a record a line, ended by CR LF. Texts stand in double
/// quotes with nothing escaped, so they hold anything but a double quote, line breaks too; numbers and
/// #TRUE# and #FALSE# stand bare. Files are windows-1252, the texts handed over here are UTF-8.

/// A file is not what it should be. what() is "FILE, record N: REASON".
class RecordError : public std::runtime_error {
 public:
    RecordError(std::string file, std::size_t record, std::string reason);

    const std::string file;
    const std::size_t record;  ///< from 1
    const std::string reason;
};

/// Reads records in order. It takes any bytes as untrusted. Line ends may also be LF or CR alone, blanks
/// around items and empty lines are passed over. Every function throws RecordError for what is wrong in the
/// file.
class RecordReader {
 public:
    /// `file` is the name for messages. `bytes` must outlive the reader.
    RecordReader(std::string file, std::string_view bytes) : file_(std::move(file)), rest_(bytes) {}

    /// Goes to the next record; false at the end of the file.
    bool Next();

    /// Of the current record, from 1.
    std::size_t RecordNumber() const { return record_; }

    /// Items of the current record.
    std::size_t Items() const { return items_.size(); }
    const std::string& Text(std::size_t item) const;
    double Number(std::size_t item) const;
    bool Boolean(std::size_t item) const;

    /// Throws RecordError for the current record.
    [[noreturn]] void Fail(std::string reason) const;

 private:
    using Item = std::variant<std::string, double, bool>;

    template <typename T>
    const T& Get(std::size_t item, std::string_view expected) const;
    bool AtLineEnd() const;
    void SkipBlanks();
    Item ReadItem();
    std::string ReadQuoted();
    Item ReadBare();

    std::string file_;
    std::string_view rest_;
    std::size_t record_ = 0;
    std::vector<Item> items_;
};

/// Builds the bytes of a record file.
class RecordWriter {
 public:
    using Item = std::variant<std::string_view, int, double, bool>;

    /// Throws UnencodableError for a text with a double quote, a zero character or a character that
    /// windows-1252 lacks; nothing of the record is then written.
    void Write(std::initializer_list<Item> record);

    const std::string& Bytes() const { return bytes_; }

 private:
    std::string bytes_;
};

}  // namespace quillmark
