#include "platform/run_and_wait.h"

#include <sys/stat.h>

#include <csignal>

#include "support/session_test.h"

namespace verandis {
namespace {

using testing_support::Bytes;
using testing_support::PutBytes;

class Programs : public testing_support::SessionTest {
protected:
    /// A stand-in program; without permission to run it when the mode says so.
    std::string Script(const std::string& body, mode_t mode = 0755) {
        const std::string path = Path("stand in & co");
        PutBytes(path, "#!/bin/sh\n" + body);
        ::chmod(path.c_str(), mode);
        return path;
    }
};

TEST_F(Programs, TellTheirEndsApart) {
    struct Row {
        const char* fault;
        ProgramCall call;
        ProgramEnd end;
        int code;
    };
    const Row rows[] = {
        {"a refusal is no success", {Script("exit 3\n"), {}, {}}, ProgramEnd::Finished, 3},
        {"a bare name is searched", {"true", {}, {}}, ProgramEnd::Finished, 0},
        {"missing", {Path("nowhere"), {}, {}}, ProgramEnd::NotStarted, 0},
    };
    for (const Row& row : rows) {
        const ProgramResult result = RunAndWait(row.call);
        EXPECT_EQ(result.end, row.end) << row.fault;
        EXPECT_EQ(result.code, row.code) << row.fault;
    }
    const ProgramResult crashed = RunAndWait({Script("kill -SEGV $$\n"), {}, {}});
    EXPECT_EQ(crashed.end, ProgramEnd::Crashed);
    EXPECT_EQ(crashed.code, SIGSEGV);
    EXPECT_EQ(RunAndWait({Script("exit 0\n", 0644), {}, {}}).end, ProgramEnd::NotStarted);
}

TEST_F(Programs, GetArgumentsAndEnvironmentAsTheyAre) {
    const std::string target = Path("told");
    ::setenv("VERANDIS_KEPT", "kept", 1);
    ::setenv("VERANDIS_OWN", "before", 1);
    const ProgramResult result =
        RunAndWait({Script("printf '%s|' \"$@\" \"$VERANDIS_KEPT\" \"$VERANDIS_OWN\" > \"$TO\"\n"),
                    {"a b", "$HOME;*", ""},
                    {{"TO", target}, {"VERANDIS_OWN", "a=b"}}});
    ASSERT_EQ(result.end, ProgramEnd::Finished);
    EXPECT_EQ(Bytes(target), "a b|$HOME;*||kept|a=b|");
}

}  // namespace
}  // namespace verandis
