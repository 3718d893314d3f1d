// Reads arbitrary bytes as an address book, adds its first record once more and takes it out.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "entry/address_book_list.h"
#include "platform/code_page.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const AddressList list = AddressListOf("input", bytes);
    if (list.records.empty()) return 0;
    const std::string& first = list.records.front();
    if (WithRecord(bytes, first) != bytes) std::abort();
    const std::string without = WithoutRecord(bytes, first);
    if (without.size() >= bytes.size()) std::abort();
    for (const std::string& record : AddressListOf("input", without).records)
        if (record == first) std::abort();
    return 0;
}
