// Cutting names out of paths.
#include "model/path_text.h"

#include <gtest/gtest.h>

namespace tidemark {
namespace {

TEST(PathTextTest, BothSeparatorsCut) {
    struct Case {
        const char *Path, *Folder, *Last;
    };
    for (const auto& [path, folder, last] : {Case{R"(C:\Scenery\a.asm)", R"(C:\Scenery\)", "a.asm"},
                                             {"/home/x/a.asm", "/home/x/", "a.asm"},
                                             {R"(/home\x/b\a.asm)", R"(/home\x/b\)", "a.asm"},
                                             {"a.asm", "", "a.asm"},
                                             {"/a", "/", "a"},
                                             {"/home/x/", "/home/x/", ""},
                                             {"", "", ""}}) {
        EXPECT_EQ(Folder_part(path), folder) << path;
        EXPECT_EQ(Last_part(path), last) << path;
    }
}

}  // namespace
}  // namespace tidemark
