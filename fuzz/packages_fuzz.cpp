// Reads arbitrary bytes as the file of packages, takes each package out and puts it in again.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/code_page.h"
#include "selection/packages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const PackageFile packages = PackagesOf("input", bytes);
    std::size_t most = 20;
    for (const Package& package : packages.packages) {
        if (most-- == 0) break;
        const std::string without = WithoutPackage(bytes, package.name);
        if (PackagesOf("input", without).Find(package.name)) std::abort();
        try {
            const PackageFile again = PackagesOf("input", WithPackage(without, package));
            const Package* found = again.Find(package.name);
            if (!found || found->documents != package.documents) std::abort();
        } catch (const PackageError&) {
            // A file may hold what no editor would have saved.
        } catch (const UnencodableError&) {
        }
    }
    return 0;
}
