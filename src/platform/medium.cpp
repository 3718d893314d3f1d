#include "platform/medium.h"

#include <cerrno>
#include <memory>
#include <vector>

#include "platform/atomic_file.h"
#include "platform/medium_system.h"

namespace quillmark {
namespace fs = std::filesystem;
namespace {

constexpr std::size_t kPart = 256 * 1024;

struct Close {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Close>;

[[noreturn]] void Fail(const fs::path& file) {
    throw FileError(file, std::error_code(errno, std::generic_category()));
}

/// The bytes of a file in the order in which they come.
class Digester {
 public:
    void Take(const char* bytes, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i)
            value_ = (value_ ^ static_cast<unsigned char>(bytes[i])) * 0x100000001b3u;
    }
    Digest Value() const { return value_; }

 private:
    Digest value_ = 0xcbf29ce484222325u;
};

/// An ordinary file, so that nothing like a pipe holds the program up.
File Open(const fs::path& file) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (fs::exists(status) && !fs::is_regular_file(status))
        throw FileError(file, FileError::Kind::Other, "is no ordinary file");
    File open(medium::OpenToRead(file));
    if (!open) Fail(file);
    return open;
}

/// Hands the file over part by part.
template <class Take>
void Read(std::FILE* file, const fs::path& name, Take take) {
    std::vector<char> part(kPart);
    while (const std::size_t count = std::fread(part.data(), 1, part.size(), file)) take(part.data(), count);
    if (std::ferror(file)) Fail(name);
}

}  // namespace

Digest CopyToNewFile(const fs::path& from, const fs::path& to, const ByteWatch& watch) {
    const File in = Open(from);
    File out(medium::OpenNew(to));
    if (!out) Fail(to);
    Digester digester;
    Read(in.get(), from, [&](const char* bytes, std::size_t count) {
        digester.Take(bytes, count);
        if (std::fwrite(bytes, 1, count, out.get()) != count) Fail(to);
        watch(count);
    });
    if (std::fflush(out.get()) != 0 || !medium::Settle(out.get())) Fail(to);
    if (std::fclose(out.release()) != 0) Fail(to);
    std::error_code none;  // not every medium keeps times
    const auto written = fs::last_write_time(from, none);
    if (!none) fs::last_write_time(to, written, none);
    return digester.Value();
}

Digest DigestOnMedium(const fs::path& file, const ByteWatch& watch) {
    const File in = Open(file);
    medium::ForgetCached(in.get());
    Digester digester;
    Read(in.get(), file, [&](const char* bytes, std::size_t count) {
        digester.Take(bytes, count);
        watch(count);
    });
    return digester.Value();
}

}  // namespace quillmark
