// SPDX-License-Identifier: MIT
// A case is a folder of cases/: records.json, options.json if any, and expected/, the whole tree
// that the export has to write. Each is a test of its own name, Golden.<folder>.
//
//   options.json   {"owner": "Anna", "only": [0, 2], "tavero": true, "records": "contacts"}
//
// All of them are optional; "records" names the case whose records.json is read in place of its
// own.
//
// For some images of the product there are stand-ins in resources/, so that a tree shows which of
// them were copied; the others are missing.
//
// With ACCEPT_GOLDEN=1 in the environment expected/ is rewritten from what the export wrote, to be
// read by a person before it is committed.
#include "driver/CBackupExporter.h"
#include "golden_tree.h"
#include "platform/OvResourceMgr.h"
#include "recordset/recordset.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <numeric>
#include <optional>
#include <string>
#include <vector>

namespace {

struct Options {
    std::optional<QString> owner; // else that of the records
    QVector<int> only;
    bool tavero = false;
    QString records; // of this case; empty: its own
};

Options allTypes()
{
    Options options{.owner = std::nullopt, .only = QVector<int>(kDataTypeCount)};
    std::iota(options.only.begin(), options.only.end(), 0);
    return options;
}

// False for a key that is not known or a value of another type: the case would test something else.
bool setOption(Options& options, const QString& key, const QJsonValue& value)
{
    if (key == "owner" && value.isString()) {
        options.owner = value.toString();
        return true;
    }
    if (key == "tavero" && value.isBool()) {
        options.tavero = value.toBool();
        return true;
    }
    if (key == "records" && value.isString()) {
        options.records = value.toString();
        return true;
    }
    if (key == "only" && value.isArray()) {
        const QJsonArray types = value.toArray();
        options.only.clear();
        std::transform(types.begin(), types.end(), std::back_inserter(options.only),
            [](const QJsonValue& type) { return type.toInt(-1); });
        return true;
    }
    return false;
}

Options readOptions(const QString& path)
{
    Options options = allTypes();
    QFile file(path);
    if (!file.exists()) {
        return options;
    }
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    EXPECT_TRUE(document.isObject()) << path.toStdString();
    const QJsonObject object = document.object();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        EXPECT_TRUE(setOption(options, entry.key(), entry.value()))
            << path.toStdString() << ": " << entry.key().toStdString();
    }
    return options;
}

class GoldenCase final : public testing::Test {
public:
    explicit GoldenCase(QString directory) : m_directory(std::move(directory)) {}

    void SetUp() override
    {
        // Trees hold what is made of the records, and of the product's images stand-ins at most.
        OvResourceMgr::instance()->setProductResourceRoot(DATAEXPORT_TEST_DIR "/resources");
    }

    void TearDown() override { OvResourceMgr::instance()->setProductResourceRoot({}); }

    void TestBody() override
    {
        const Options options = readOptions(m_directory + "/options.json");
        const QString source =
            options.records.isEmpty() ? m_directory : m_directory + "/../" + options.records;
        auto loaded = recordset::load(source + "/records.json");
        ASSERT_TRUE(loaded.has_value()) << loaded.error().text().toStdString();
        const QTemporaryDir output;
        CBackupExporter exporter;
        exporter.setExportContactForTavero(options.tavero);
        exporter.exportBackup(&loaded->records, QDir(output.path()), nullptr, options.only, false,
            options.owner.value_or(loaded->owner));
        compare(golden::readTree(output.path()));
    }

private:
    void compare(const golden::Tree& written) const
    {
        const QString expected = m_directory + "/expected";
        if (qEnvironmentVariable("ACCEPT_GOLDEN") == "1") {
            ASSERT_TRUE(golden::writeTree(expected, written));
            return;
        }
        ASSERT_TRUE(QDir(expected).exists()) << "nothing is expected yet";
        const QStringList found = golden::differences(golden::readTree(expected), written);
        for (const QString& difference : found) {
            ADD_FAILURE() << difference.toStdString();
        }
    }

    QString m_directory;
};

// Before main, which runs what is registered; without Qt, which main starts.
std::vector<std::string> registeredCases()
{
    std::vector<std::string> names;
    const std::filesystem::path cases = std::filesystem::path(DATAEXPORT_TEST_DIR) / "cases";
    for (const auto& entry : std::filesystem::directory_iterator(cases)) {
        if (entry.is_directory()) {
            names.push_back(entry.path().filename().string());
        }
    }
    std::ranges::sort(names);
#ifndef __clang_analyzer__ // it takes the factory that gtest keeps for a leak
    for (const std::string& name : names) {
        const QString directory = QString::fromStdString((cases / name).string());
        testing::RegisterTest("Golden", name.c_str(), nullptr, nullptr, __FILE__, __LINE__,
            [directory]() -> testing::Test* {
                return std::make_unique<GoldenCase>(directory).release();
            });
    }
#endif
    return names;
}

const std::vector<std::string> kCases = registeredCases();

TEST(GoldenCases, AreFound)
{
    EXPECT_FALSE(kCases.empty());
}

} // namespace
