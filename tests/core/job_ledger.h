#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "core/job_file.h"
#include "core/job_folder.h"
#include "platform/atomic_file.h"

/// Several programs save, rename and delete the jobs of one folder at random, and keep a ledger of what was
/// acknowledged. Run in short as a test, at full size as a benchmark.
namespace quillmark::test {

struct LedgerPlan {
    int processes = 4;
    int actions = 60;  ///< of each
    unsigned seed = 1;
};

struct LedgerResult {
    int saved = 0, refused = 0, renamed = 0, deleted = 0;
    int failed = 0;                    ///< programs that ended in an error
    std::vector<std::string> lost;     ///< versions that were saved, and that nobody replaced or deleted
    std::vector<std::string> revived;  ///< versions that stand there though somebody replaced or deleted them
    std::vector<std::string> mismatch;  ///< jobs that were seen with another version's picture
};

class JobLedger {
 public:
    JobLedger(const std::filesystem::path& folder, const LedgerPlan& plan) : folder_(folder), plan_(plan) {
        folders_.JobFolder = folder / "data";
        folders_.ImagesFolder = folder / "data/images";
        std::filesystem::create_directories(folders_.ImagesFolder);
    }

    LedgerResult Run() {
        for (int process = 0; process < plan_.processes; ++process)
            if (fork() == 0) Work(process);
        LedgerResult result;
        for (int process = 0; process < plan_.processes; ++process) {
            int status = 0;
            wait(&status);
            if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) ++result.failed;
        }
        Account(result);
        return result;
    }

 private:
    static constexpr int kField = 21, kPicture = 201;
    static constexpr const char* kNames[] = {"Abbott", "Pell", "Whitcomb", "Sorensen", "Lane"};

    std::filesystem::path LedgerOf(int process) const {
        return folder_ / ("ledger" + std::to_string(process));
    }

    static std::string VersionIn(const JobOnDisk& state) {
        if (!state.bytes) return {};
        for (const auto& [n, value] : JobFileContentsOf("ledger", *state.bytes).fields)
            if (n == kField) return value;
        return {};
    }

    [[noreturn]] void Work(int process) {
        std::FILE* ledger = std::fopen(LedgerOf(process).c_str(), "w");
        std::mt19937 random(plan_.seed * 1000 + static_cast<unsigned>(process));
        const auto name = [&] { return std::string(kNames[random() % std::size(kNames)]); };
        try {
            for (int action = 0; action < plan_.actions; ++action) {
                const std::string version = std::to_string(process) + "." + std::to_string(action);
                switch (random() % 6) {
                    case 0:
                        if (RenameIfThere(name(), name())) std::fprintf(ledger, "R\n");
                        break;
                    case 1:
                        Delete(name(), ledger);
                        break;
                    case 2:
                        Look(name(), ledger);
                        break;
                    default:
                        Save(name(), version, ledger);
                }
            }
        } catch (const std::exception& failure) {
            std::fprintf(stderr, "%s\n", failure.what());
            _exit(1);
        }
        std::fclose(ledger);
        _exit(0);
    }

    bool RenameIfThere(const std::string& name, const std::string& newName) {
        try {
            return name != newName && RenameJobFiles(folders_, name, newName);
        } catch (const FileError& failure) {
            if (failure.kind != FileError::Kind::NotFound) throw;
            return false;
        }
    }

    void Delete(const std::string& name, std::FILE* ledger) {
        JobOnDisk seen = LookAtJob(folders_, name);
        if (seen.bytes && DeleteJobFiles(folders_, name, {&seen}))
            std::fprintf(ledger, "D %s\n", VersionIn(seen).c_str());
    }

    void Look(const std::string& name, std::FILE* ledger) {
        Job job;
        try {
            ReadJobFile(folders_, JobFilePath(folders_, name), job, false);
        } catch (const FileError& failure) {
            if (failure.kind != FileError::Kind::NotFound) throw;
            return;
        }
        if (job.FieldPictures[kPicture] != "BM" + job.D(kField))
            std::fprintf(ledger, "M %s\n", job.D(kField).c_str());
    }

    void Save(const std::string& name, const std::string& version, std::FILE* ledger) {
        Job job;
        job.name = name;
        job.SetField(kField, version);
        job.SetField(kPicture, kImageLiteral);
        job.FieldPictures[kPicture] = "BM" + version;
        JobOnDisk state = LookAtJob(folders_, name);
        const std::string replaced = VersionIn(state);
        if (SaveJobFiles(folders_, job, {&state}))
            std::fprintf(ledger, "S %s %s\n", version.c_str(), replaced.c_str());
        else
            std::fprintf(ledger, "N\n");
    }

    void Account(LedgerResult& result) const {
        std::set<std::string> saved, gone, present;
        for (int process = 0; process < plan_.processes; ++process) {
            std::istringstream lines(ReadFile(LedgerOf(process), 1 << 24));
            for (std::string line; std::getline(lines, line);) {
                std::istringstream words(line);
                std::string kind, version, replaced;
                words >> kind >> version >> replaced;
                if (kind == "S") ++result.saved, saved.insert(version), gone.insert(replaced);
                if (kind == "D") ++result.deleted, gone.insert(version);
                if (kind == "R") ++result.renamed;
                if (kind == "N") ++result.refused;
                if (kind == "M") result.mismatch.push_back(version);
            }
        }
        for (const char* name : kNames) {
            const JobOnDisk state = LookAtJob(folders_, name);
            if (!state.bytes) continue;
            present.insert(VersionIn(state));
            Job job;
            ReadJobFile(folders_, JobFilePath(folders_, name), job, false);
            if (job.FieldPictures[kPicture] != "BM" + job.D(kField)) result.mismatch.push_back(name);
        }
        for (const std::string& version : saved)
            if (!gone.contains(version) && !present.contains(version)) result.lost.push_back(version);
        for (const std::string& version : present)
            if (gone.contains(version)) result.revived.push_back(version);
    }

    const std::filesystem::path folder_;
    const LedgerPlan plan_;
    Folders folders_;
};

}  // namespace quillmark::test
