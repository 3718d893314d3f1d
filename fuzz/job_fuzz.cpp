// Reads arbitrary bytes as a job file. What is read must survive being written and read again.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "core/job_file.h"
#include "platform/record_file.h"

namespace {

using namespace quillmark;

void Require(bool condition) {
    if (!condition) std::abort();
}

bool HoldSameValues(const Job& a, const Job& b) {
    for (int n = 1; n <= kOptions; ++n) {
        if (a.optConf(n) != b.optConf(n)) return false;
    }
    for (int n = 2; n <= kFields; ++n) {
        if (a.IsFilled(n) != b.IsFilled(n) || (a.IsFilled(n) && a.D(n) != b.D(n))) return false;
    }
    // A file holds them in the reverse order.
    return a.JobDocuments == b.JobDocuments && a.userFields.size() == b.userFields.size() &&
           std::equal(a.userFields.begin(), a.userFields.end(), b.userFields.rbegin());
}

Job JobOf(std::string_view bytes) {
    Job job;
    ApplyJobFile(JobFileContentsOf("fuzz", bytes), job, false);
    return job;
}

void ReadAsJob(std::string_view bytes) {
    Job job;
    const std::string before = JobFileRecords(job);
    try {
        job = JobOf(bytes);
    } catch (const RecordError&) {
        Require(JobFileRecords(job) == before);
        return;
    } catch (const JobFileError&) {
        Require(JobFileRecords(job) == before);
        return;
    }
    const std::string written = JobFileRecords(job);
    const Job again = JobOf(written);
    Require(HoldSameValues(job, again));
    Require(JobFileRecords(JobOf(JobFileRecords(again))) == written);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    ReadAsJob(bytes);
    return 0;
}
