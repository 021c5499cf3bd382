#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include "platform/kernel/Kernel.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "tests/support/TestSupport.h"

using namespace orrery::sdk;
using orrery::kernel::Kernel;
using testsupport::SampleKernelTest;

namespace {

class DataLoading : public SampleKernelTest
{
protected:
    bool load(const std::string& loaderName, const char* name, const QByteArray& content)
    {
        const QString path = QDir(folder.path()).filePath(name);
        QFile out(path);
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(content);
        out.close();
        error.clear();
        return DataLoaderRepository::getInstance().loaderNamed(loaderName)->load(path.toStdString(), error);
    }
    const orrery::kernel::DataSet& data() { return Kernel::instance().dataSet(); }

    QTemporaryDir folder;
    std::string error;
};

class HiddenLoader : public DataLoaderInterface
{
public:
    Properties properties() const override { return {"Raw dump", "", {"csv"}, true}; }
    bool load(const std::string&, std::string&) override { return false; }
};

} // namespace

TEST_F(DataLoading, EachFormatBecomesItsZonesAndBadFilesAreRefusedWithTheLine)
{
    ASSERT_TRUE(load("CSV table", "probe.csv", "\"x\", \"p\"\n0,1.5\n# comment\n\n2, -3e2\r\n"));
    EXPECT_EQ(1, data().numZones());
    EXPECT_EQ("probe", data().zoneName(1));
    EXPECT_EQ("p", data().varName(2));
    EXPECT_EQ((std::vector<double>{1.5, -300.0}), data().values(1, 2));

    ASSERT_TRUE(load("Text table", "run.dat", "t   T\n0\t300\n1  310\n"));
    EXPECT_EQ(2, data().numVars());
    EXPECT_EQ((std::vector<double>{300.0, 310.0}), data().values(1, 2));

    ASSERT_TRUE(load("Zone blocks", "two.zbk", "TITLE Two blocks\nVARIABLES X Y\nZONE Left part\n0 0\n1 1\nZONE Right\n2 4\n"));
    EXPECT_EQ("Two blocks", data().title());
    EXPECT_EQ(2, data().numZones());
    EXPECT_EQ("Left part", data().zoneName(1));
    EXPECT_EQ(1u, data().pointCount(2));

    // Bad files are refused with the line and change nothing.
    EXPECT_FALSE(load("CSV table", "bad.csv", "a,b\n1,2\n3\n"));
    EXPECT_EQ("Line 3: 1 values where 2 were expected.", error);
    EXPECT_FALSE(load("Text table", "bad.txt", "a b\n1 two\n"));
    EXPECT_EQ("Line 2: \"two\" is not a number.", error);
    EXPECT_FALSE(load("Zone blocks", "bad.zbk", "ZONE z\n1 2\n"));
    EXPECT_EQ("Line 1: a zone starts before the VARIABLES line.", error);
    EXPECT_FALSE(load("CSV table", "empty.csv", "a,b\n"));
    error.clear();
    EXPECT_FALSE(DataLoaderRepository::getInstance().loaderNamed("CSV table")->load(
        folder.path().toStdString() + "/missing.csv", error));
    EXPECT_EQ("Two blocks", data().title());
}

TEST_F(DataLoading, RepositoryFindsLoadersByExtension)
{
    DataLoaderRepository& repository = DataLoaderRepository::getInstance();
    EXPECT_EQ(4u, repository.dataLoaderInterfaces(false).size());
    ASSERT_EQ(1u, repository.loadersForExtension(".DAT").size());
    EXPECT_EQ("Text table", repository.loadersForExtension("dat")[0]->properties().name);
    EXPECT_TRUE(repository.loadersForExtension("xyz").empty());

    repository.registerLoader(boost::make_shared<HiddenLoader>());
    EXPECT_EQ(4u, repository.dataLoaderInterfaces(false).size());
    EXPECT_EQ(5u, repository.dataLoaderInterfaces(true).size());
    EXPECT_EQ(1u, repository.loadersForExtension("csv").size());
    EXPECT_FALSE(repository.loaderNamed("No such loader"));
}
