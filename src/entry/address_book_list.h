#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The bytes of a list file: windows-1252, a record a line, ended by CR LF, unsorted. Any bytes are taken:
/// lines may end in CR LF, LF or CR, the last one in nothing. Lines that are no records stay byte for byte.
namespace quillmark {

struct AddressList {
    std::vector<std::string> records;  ///< whole lines as UTF-8, in file order
    std::vector<std::string> faults;   ///< "FILE, line N: what is wrong", for the user
};

/// `file` is its name for messages. Empty lines are neither record nor fault.
AddressList AddressListOf(std::string_view file, std::string_view bytes);

/// The bytes with the record as the last line; unchanged if an equal line is there. Throws UnencodableError.
std::string WithRecord(std::string_view bytes, std::string_view record);
/// The bytes without every line that equals the record. Throws UnencodableError.
std::string WithoutRecord(std::string_view bytes, std::string_view record);

}  // namespace quillmark
