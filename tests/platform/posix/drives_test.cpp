#include <gmock/gmock.h>

#include "platform/posix/mounts.h"

namespace quillmark {
namespace {

TEST(Drives, AreMediaThatCanBeCarriedAwayAndPlacesOnTheNetwork) {
    const auto drives = DrivesAmong(
        "/dev/sda2 / ext4 rw 0 0\n"
        "proc /proc proc rw 0 0\n"
        "server:/root / nfs rw 0 0\n"
        "/dev/sda3 /home ext4 rw 0 0\n"
        "/dev/sdb1 /media/ann/MY\\040STICK vfat rw 0 0\n"
        "/dev/sdc1 /opt/camera vfat rw 0 0\n"
        "//files/office /srv/office cifs rw 0 0\n"
        "/dev/sdb1 /media/ann/MY\\040STICK vfat rw 0 0\n"
        "/dev/sdd1 /mnt/disk ext4 rw 0 0\n"
        "tmpfs /mnt/system/work/own tmpfs rw 0 0\n"
        "gvfsd-fuse /run/user/1000/gvfs fuse.gvfsd-fuse rw 0 0\n"
        "torn",
        [](std::string_view device) { return device == "/dev/sdc1"; },
        [](const std::filesystem::path& folder) {
            return std::vector{folder / "smb-share:server=files,share=closings"};
        });
    std::vector<std::string> names;
    for (const Drive& drive : drives) names.push_back(drive.name);
    EXPECT_THAT(names,
                ::testing::ElementsAre("/media/ann/MY STICK", "/opt/camera", "/srv/office", "/mnt/disk",
                                       "/run/user/1000/gvfs/smb-share:server=files,share=closings"));
}

}  // namespace
}  // namespace quillmark
