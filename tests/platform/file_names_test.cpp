// The machine's files found, measured and removed by their names.
#include <gtest/gtest.h>

#include "fakes/environment.h"
#include "fakes/temporary_folder.h"
#include "platform/files.h"

namespace tidemark {
namespace {

TEST(FileNamesTest, AFileIsFoundWhateverTheCaseOfItsName) {
    const TemporaryFolder folder;
    DiskFiles files;
    for (const char* name : {"bglc.exe", "Skye.BGL", "Skye.bgl", "BGLC.EXE.old"})
        Write_file(folder / name, name);
    EXPECT_EQ(files.Find(folder / "BGLC.EXE"), folder / "bglc.exe");
    EXPECT_EQ(files.Find(folder / "Skye.bgl"), folder / "Skye.bgl") << "its own name comes first";
    EXPECT_EQ(files.Find(folder / "skye.bgl"), folder / "Skye.BGL") << "then the alphabet decides";
    EXPECT_EQ(files.Find(folder / "skye"), std::nullopt);
    EXPECT_EQ(files.Find(folder / "no such folder/skye.bgl"), std::nullopt);
}

TEST(FileNamesTest, SizesFullPathsAndRemoval) {
    const TemporaryFolder folder;
    DiskFiles files;
    Write_file(folder / "Skye.BGL", "12345");
    EXPECT_EQ(files.Size(folder / "Skye.BGL"), 5U);
    EXPECT_EQ(files.Size(folder / "none"), std::nullopt);
    EXPECT_EQ(files.Full_path("/a/-b c"), "/a/-b c");
    EXPECT_EQ(files.Full_path("-b"), std::filesystem::current_path().string() + "/-b");
    EXPECT_TRUE(files.Delete(folder / "Skye.BGL"));
    EXPECT_EQ(files.Delete(folder / "Skye.BGL").Reason(), "No such file or directory");
    EXPECT_FALSE(files.Delete(folder.Path())) << "a folder is not a file";
    EXPECT_TRUE(folder.Names().empty());
}

}  // namespace
}  // namespace tidemark
