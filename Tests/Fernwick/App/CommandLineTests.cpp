#include <getopt.h>
#include <gtest/gtest.h>

#include <QCborMap>
#include <QCborValue>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "App/CommandLine.hpp"
#include "Support/EnvironmentVariable.hpp"
#include "Support/FileContent.hpp"
#include "Support/TemporaryFolder.hpp"

namespace fs = std::filesystem;

namespace {

struct Outcome {
    /// Nothing if the game starts.
    std::optional<int> status;
    std::string out;
    std::string error;

    friend bool operator==(const Outcome&, const Outcome&) = default;
};

/// What the program does with these arguments, which follow its name.
Outcome outcomeOf(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "fernwick");
    std::vector<char*> pointers;
    for (std::string& argument : arguments) {
        pointers.push_back(argument.data());
    }
    pointers.push_back(nullptr);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    ::optind = 0;  // starts getopt_long() anew
    const auto status = handleCommandLine(static_cast<int>(arguments.size()), pointers.data());
    return {status, testing::internal::GetCapturedStdout(), testing::internal::GetCapturedStderr()};
}

/// Expects exit status 2 and a single line on stderr that contains `reason`.
void expectRefused(const std::vector<std::string>& arguments, const std::string& reason) {
    const Outcome outcome = outcomeOf(arguments);

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.error.find('\n'), outcome.error.size() - 1) << outcome.error;
    EXPECT_TRUE(outcome.error.starts_with("fernwick: ")) << outcome.error;
    EXPECT_NE(outcome.error.find(reason), std::string::npos) << outcome.error;
}

}  // namespace

TEST(CommandLine, startsTheGameWithoutArguments) {
    const Outcome gameStarts{std::nullopt, "", ""};

    EXPECT_EQ(outcomeOf({}), gameStarts);
    EXPECT_EQ(outcomeOf({"--"}), gameStarts);
}

TEST(CommandLine, printsTheVersion) {
    const Outcome printsVersion{0, "Fernwick " PROJECT_VERSION "\n", ""};

    EXPECT_EQ(outcomeOf({"--version"}), printsVersion);
    EXPECT_EQ(outcomeOf({"-v"}), printsVersion);
    EXPECT_STREQ(programVersion(), PROJECT_VERSION);
}

TEST(CommandLine, printsHelpWithEveryOption) {
    const Outcome help = outcomeOf({"--help"});

    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.error, "");
    EXPECT_TRUE(help.out.starts_with("Usage: fernwick [OPTION]\n")) << help.out;
    EXPECT_NE(help.out.find("-h, --help "), std::string::npos) << help.out;
    EXPECT_NE(help.out.find("-v, --version "), std::string::npos) << help.out;
    EXPECT_NE(help.out.find(" --export-scores "), std::string::npos) << help.out;
    EXPECT_EQ(outcomeOf({"-h"}), help);
}

TEST(CommandLine, fitsHelpInto80Columns) {
    const std::string help = outcomeOf({"--help"}).out;

    for (std::size_t begin = 0; begin < help.size();) {
        const std::size_t end = help.find('\n', begin);
        EXPECT_LT(end - begin, 80U) << help.substr(begin, end - begin);
        begin = end + 1;
    }
}

TEST(CommandLine, printsTheScoresOfTheSettingsFile) {
    const TemporaryFolder folder;
    const EnvironmentVariable config("XDG_CONFIG_HOME", folder.path().c_str());
    const fs::path settings = folder.path() / "fernwick" / "preferences.cbor";
    const QByteArray table = "[]";
    writeFile(settings, QCborMap{{QStringLiteral("high-scores-v1"), table}}.toCborValue().toCbor());
    const Outcome printsTable{0, "[]\n", ""};

    EXPECT_EQ(outcomeOf({"--export-scores"}), printsTable);

    fs::remove(settings);
    EXPECT_EQ(outcomeOf({"--export-scores"}), printsTable);
}

TEST(CommandLine, namesASettingsFileWhoseScoresCannotBeRead) {
    const TemporaryFolder folder;
    const EnvironmentVariable config("XDG_CONFIG_HOME", folder.path().c_str());
    const fs::path settings = folder.path() / "fernwick" / "preferences.cbor";
    writeFile(settings, "not CBOR");

    const Outcome refused{1, "", "fernwick: cannot read the scores in " + settings.string() + "\n"};
    EXPECT_EQ(outcomeOf({"--export-scores"}), refused);
}

TEST(CommandLine, refusesAnUnknownOption) {
    expectRefused({"--windowed"}, "--windowed");
    expectRefused({"-x"}, "'x'");
    expectRefused({"--version=2"}, "--version");
    expectRefused({"--export-scores=all"}, "--export-scores");
    expectRefused({"--windowed", "--help"}, "--windowed");
}

TEST(CommandLine, refusesTheOptionsOfQt) {
    for (const std::string option :
         {"-platform", "-style", "-stylesheet", "-display", "-geometry", "-qwindowgeometry",
          "-session", "-reverse", "-plugin", "-title"}) {
        expectRefused({option, "value"}, "invalid option");
        expectRefused({"-" + option, "value"}, "-" + option);
    }
}

TEST(CommandLine, refusesAFileOrAnyOtherArgument) {
    expectRefused({"scores.cbor"}, "'scores.cbor'");
    expectRefused({""}, "''");
    expectRefused({"--", "--help"}, "'--help'");
}
