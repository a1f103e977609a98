#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QCborMap>
#include <QCborValue>
#include <chrono>

#include "App/ScoreExport.hpp"
#include "Fernwick/Session/SavedScores.hpp"
#include "Storage/PreferencesFile.hpp"
#include "Support/FileContent.hpp"
#include "Support/TemporaryFolder.hpp"

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;

namespace {

class ScoreExport : public testing::Test {
protected:
    [[nodiscard]] fs::path folder() const { return folder_.path() / "fernwick"; }
    [[nodiscard]] fs::path path() const { return folder() / "preferences.cbor"; }

    /// Stores a table as the game does.
    void store(const QCborValue& table) const {
        Storage::PreferencesFile preferences(path());
        preferences.store(u"high-scores-v1"_s, table);
        EXPECT_TRUE(preferences.flush(std::chrono::minutes(1)));
    }

private:
    TemporaryFolder folder_;
};

}  // namespace

TEST_F(ScoreExport, isTheTableAsJson) {
    const std::string table = scoreTable({{"Zoë \"Z\" 🐍", 120}, {"Ada", 90}}).encoded();
    store(QByteArray::fromStdString(table));

    EXPECT_EQ(exportScores(path()), table + "\n");
}

TEST_F(ScoreExport, isAnEmptyTableBeforeAnyScoreIsSaved) {
    EXPECT_EQ(exportScores(path()), "[]\n");
    EXPECT_EQ(exportScores({}), "[]\n");

    writeFile(path(), QCborMap{{u"sound"_s, false}}.toCborValue().toCbor());
    EXPECT_EQ(exportScores(path()), "[]\n");
}

TEST_F(ScoreExport, isNothingIfTheFileCannotBeRead) {
    writeFile(path(), "not CBOR");
    EXPECT_EQ(exportScores(path()), std::nullopt);

    writeFile(path(), "");
    EXPECT_EQ(exportScores(path()), std::nullopt);

    EXPECT_EQ(exportScores(folder()), std::nullopt);
}

TEST_F(ScoreExport, isNothingIfTheTableInTheFileCannotBeRead) {
    for (const QCborValue& damaged :
         {QCborValue("[{\"name\":"_ba), QCborValue(u"[]"_s), QCborValue(QCborMap())}) {
        store(damaged);
        EXPECT_EQ(exportScores(path()), std::nullopt)
            << damaged.toDiagnosticNotation().toStdString();
    }
}

TEST_F(ScoreExport, changesNoFileAndCreatesNone) {
    EXPECT_EQ(exportScores(path()), "[]\n");
    EXPECT_FALSE(fs::exists(folder()));

    const QByteArray content = QCborMap{{u"sound"_s, false}}.toCborValue().toCbor();
    writeFile(path(), content);
    // As left by a process that was killed while it wrote the settings; a start of the game removes
    // it.
    writeFile(folder() / "preferences.cbor.new-123456", content);
    const auto written = fs::last_write_time(path());

    EXPECT_EQ(exportScores(path()), "[]\n");

    EXPECT_EQ(namesIn(folder()),
              (std::vector<std::string>{"preferences.cbor", "preferences.cbor.new-123456"}));
    EXPECT_EQ(readFile(path()), content);
    EXPECT_EQ(fs::last_write_time(path()), written);
}
