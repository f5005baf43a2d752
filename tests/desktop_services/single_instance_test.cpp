// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/single_instance.h"
#include "support/disk_fixture.h"

namespace velmoriax::desktop {
namespace {

namespace fs = std::filesystem;

using SingleInstanceTest = test::DiskFixture;

TEST_F(SingleInstanceTest, TheLockIsHeldForOneFolderUntilTheEnd) {
    const std::string folder = user_.string(), other = root_.string();
    {
        const SingleInstance first(folder);
        EXPECT_TRUE(first.isFirst());
        EXPECT_FALSE(SingleInstance(folder).isFirst());
        EXPECT_FALSE(SingleInstance(folder).isFirst()) << "a refused instance must not release the lock";
        EXPECT_TRUE(SingleInstance(other).isFirst());
    }
    EXPECT_TRUE(SingleInstance(folder).isFirst());
}

TEST_F(SingleInstanceTest, AFolderThatCannotBeWrittenHasItsLockInTheRuntimeFolder) {
    const test::Variable runtime("XDG_RUNTIME_DIR", root_.c_str());
    fs::permissions(root_, fs::perms::owner_all);
    const std::string folder = "/proc/self/net", other = "/proc/self/fd";
    const SingleInstance first(folder);
    EXPECT_TRUE(first.isFirst());
    EXPECT_FALSE(SingleInstance(folder).isFirst());
    EXPECT_TRUE(SingleInstance(other).isFirst());
}

TEST_F(SingleInstanceTest, TheLockOfADeadProcessDoesNotCount) {
    write(user_ / ".velmoriax.lock", "999999999\nVelmoriax\nhost\n\n\n");
    EXPECT_TRUE(SingleInstance(user_.string()).isFirst());
}

} // namespace
} // namespace velmoriax::desktop
