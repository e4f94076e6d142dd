// The order of a replacement's steps, whichever of them fails.
#include "platform/replace_file.h"

#include "fakes/rules_test.h"

namespace tidemark {

// A file in memory whose steps fail where the test says. One that fails to fill leaves half of it.
class FailingSteps : public Replacement {
  public:
    std::set<std::string> Failing;
    bool CanBeRenamed = true;
    std::string Target = "old bytes", Temporary, Copy;

    FileResult Find_target(const std::string&) override { return Step("find"); }
    FileResult Create_temporary() override { return Step("create"); }
    bool Take_on_attributes() override { return CanBeRenamed; }
    FileResult Fill_temporary(std::string_view bytes) override {
        return Fill(Temporary, bytes, "fill temporary");
    }
    FileResult Fill_target(std::string_view bytes) override {
        return Fill(Target, bytes, bytes == "new" ? "fill target" : "restore");
    }
    FileResult Read_target(std::string& bytes) override {
        bytes = Target;
        return Step("read");
    }
    FileResult Rename_over_target() override {
        const FileResult renamed = Step("rename");
        if (renamed) Target = Temporary;
        return renamed;
    }
    FileResult Keep_as_copy(std::string& name) override {
        const FileResult kept = Step("keep");
        if (kept) Copy = Temporary;
        name = "the copy";
        return kept;
    }
    void Remove_copy() override { Copy.clear(); }
    void Remove_leftovers() override {}

  private:
    FileResult Step(const std::string& name) const {
        return Failing.contains(name) ? FileResult::Failed(name) : FileResult::Done();
    }
    FileResult Fill(std::string& file, std::string_view bytes, const std::string& name) const {
        const FileResult filled = Step(name);
        file = filled ? bytes : bytes.substr(0, bytes.size() / 2);
        return filled;
    }
};

// What fails => how it ends, what the target holds and what the copy does.
TEST(ReplaceFileTest, WhicheverStepFailsTheOldBytesAreInTheFileOrInACopyThatIsNamed) {
    const auto outcome = [](const Given& given) {
        FailingSteps steps;
        steps.CanBeRenamed = given[0] == "renamed";
        steps.Failing.insert(given.begin() + 1, given.end());
        const FileResult result = Replace_file(steps, "file", "new");
        const std::string said = result ? "done" : result.Reason();
        return said + " [" + steps.Target + "] [" + steps.Copy + "]";
    };
    Expect_cases("platform/data/replacements.txt", outcome);
}

}  // namespace tidemark
