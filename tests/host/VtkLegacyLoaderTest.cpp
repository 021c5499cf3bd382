#include <limits>
#include <cmath>
#include <random>
#include <QDir>
#include <QFileInfo>
#include <sys/stat.h>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtEndian>
#include "host/kernel/Kernel.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "host/loaders/LoadProgress.h"
#include "tests/support/TestSupport.h"

using namespace orrery::sdk;
using orrery::kernel::Kernel;
using testsupport::SampleKernelTest;

namespace {

template <typename T>
QByteArray bigEndian(const std::vector<T>& values)
{
    QByteArray out;
    for (T v : values) {
        char bytes[sizeof(T)];
        qToBigEndian(v, bytes);
        out.append(bytes, sizeof(T));
    }
    return out;
}

class VtkLoading : public SampleKernelTest
{
protected:
    bool load(const QByteArray& content, const char* name = "data.vtk")
    {
        path = QDir(folder.path()).filePath(name);
        QFile out(path);
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(content);
        out.close();
        error.clear();
        const auto loaders = DataLoaderRepository::getInstance().loadersForExtension("vtk");
        EXPECT_EQ(loaders.size(), 1u);
        return loaders.front()->load(path.toStdString(), error);
    }
    const orrery::kernel::DataSet& data() { return Kernel::instance().dataSet(); }
    std::vector<std::string> varNames()
    {
        std::vector<std::string> names;
        for (int v = 1; v <= data().numVars(); ++v)
            names.push_back(data().varName(v));
        return names;
    }
    const std::vector<double>& values(const char* name)
    {
        for (int v = 1; v <= data().numVars(); ++v)
            if (data().varName(v) == name)
                return data().values(1, v);
        static const std::vector<double> none;
        ADD_FAILURE() << "no variable " << name;
        return none;
    }

    QTemporaryDir folder;
    QString path;
    std::string error;
};

TEST_F(VtkLoading, AsciiStructuredPointsGiveCoordinatesFromOriginAndSpacingAndEveryComponent)
{
    ASSERT_TRUE(load("# vtk DataFile Version 3.0\n"
                     "A small field\n"
                     "ASCII\n"
                     "DATASET STRUCTURED_POINTS\n"
                     "DIMENSIONS 3 2 1\n"
                     "ORIGIN 1 -1 0.5\n"
                     "SPACING 0.5 2 1\n"
                     "\n"
                     "POINT_DATA 6\n"
                     "SCALARS pressure float\n"
                     "LOOKUP_TABLE default\n"
                     "1 2 3\n4 5e-1 +6\n"
                     "VECTORS velocity double\n"
                     "1 0 0  0 1 0  0 0 1\n1 1 1  2 2 2  nan 3 3\n"))
        << error;
    EXPECT_EQ(data().title(), "A small field");
    EXPECT_EQ(varNames(),
              (std::vector<std::string>{"X", "Y", "Z", "pressure", "velocity_X", "velocity_Y", "velocity_Z"}));
    EXPECT_EQ(values("X"), (std::vector<double>{1, 1.5, 2, 1, 1.5, 2}));
    EXPECT_EQ(values("Y"), (std::vector<double>{-1, -1, -1, 1, 1, 1}));
    EXPECT_EQ(values("Z"), (std::vector<double>(6, 0.5)));
    EXPECT_EQ(values("pressure"), (std::vector<double>{1, 2, 3, 4, 0.5, 6}));
    EXPECT_EQ(values("velocity_Y"), (std::vector<double>{0, 1, 0, 1, 2, 3}));
    EXPECT_TRUE(std::isnan(values("velocity_X")[5])) << "a nan is a missing value";
}

TEST_F(VtkLoading, BinaryStructuredGridIsReadBigEndianWhateverTheBytesLookLike)
{
    // 10.0f is 0x41200000 and 2.5 as a double starts 0x40 0x04: bytes that look like
    // text; 0x0A (a newline) must be taken as data too.
    const std::vector<float> points{0, 0, 0, 10, 0, 0, 0, 1, 0, 10, 1, 0};
    const std::vector<double> temperature{2.5, -1e-3, 1e300, 7};
    QByteArray file = "# vtk DataFile Version 3.0\nBinary grid\nBINARY\nDATASET STRUCTURED_GRID\n"
                      "DIMENSIONS 2 2 1\nPOINTS 4 float\n";
    file += bigEndian(points);
    file += "\nPOINT_DATA 4\nSCALARS temperature double 1\nLOOKUP_TABLE default\n";
    file += bigEndian(temperature);
    file += "\nSCALARS flag unsigned_char\nLOOKUP_TABLE default\n";
    file += QByteArray("\x0a\x00\xff\x41", 4);
    file += "\n";
    ASSERT_TRUE(load(file)) << error;
    EXPECT_EQ(values("X"), (std::vector<double>{0, 10, 0, 10}));
    EXPECT_EQ(values("Y"), (std::vector<double>{0, 0, 1, 1}));
    EXPECT_EQ(values("temperature"), temperature);
    EXPECT_EQ(values("flag"), (std::vector<double>{10, 0, 255, 65}));
}

TEST_F(VtkLoading, UnstructuredGridsOfBothCellLayoutsKeepPointsAndPointDataOnly)
{
    ASSERT_TRUE(load("# vtk DataFile Version 2.0\nTets\nASCII\nDATASET UNSTRUCTURED_GRID\n"
                     "POINTS 4 float\n0 0 0 1 0 0 0 1 0 0 0 1\n"
                     "CELLS 1 5\n4 0 1 2 3\nCELL_TYPES 1\n10\n"
                     "CELL_DATA 1\nSCALARS material int 1\nLOOKUP_TABLE default\n7\n"
                     "POINT_DATA 4\nFIELD FieldData 1\ncharge 2 4 float\n1 2 3 4 5 6 7 8\n"))
        << error;
    EXPECT_EQ(varNames(), (std::vector<std::string>{"X", "Y", "Z", "charge_1", "charge_2"}));
    EXPECT_EQ(values("charge_2"), (std::vector<double>{2, 4, 6, 8}));
    EXPECT_EQ(values("Z"), (std::vector<double>{0, 0, 0, 1}));

    QByteArray binary = "# vtk DataFile Version 5.1\nNew layout\nBINARY\nDATASET UNSTRUCTURED_GRID\n"
                        "POINTS 2 double\n";
    binary += bigEndian<double>({1, 2, 3, 4, 5, 6});
    binary += "\nCELLS 2 2\nOFFSETS vtktypeint64\n";
    binary += QByteArray("\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x02", 16);
    binary += "\nCONNECTIVITY vtktypeint64\n";
    binary += QByteArray("\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x01", 16);
    binary += "\nCELL_TYPES 1\n";
    binary += QByteArray("\0\0\0\x03", 4);
    binary += "\nPOINT_DATA 2\nNORMALS n float\n";
    binary += bigEndian<float>({0, 0, 1, 0, 1, 0});
    ASSERT_TRUE(load(binary)) << error;
    EXPECT_EQ(values("Y"), (std::vector<double>{2, 5}));
    EXPECT_EQ(values("n_Z"), (std::vector<double>{1, 0}));
}

TEST_F(VtkLoading, BadFilesAreRefusedWithFileAndLineAndTheDataSetKept)
{
    const QByteArray head = "# vtk DataFile Version 3.0\nt\nASCII\nDATASET STRUCTURED_POINTS\nDIMENSIONS 2 1 1\n";
    const std::pair<QByteArray, std::string> bad[] = {
        {"x,y\n1,2\n", "line 1: this is not a legacy VTK file"},
        {QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), "this is not a legacy VTK file"},
        {"# vtk DataFile Version 3.0\nt\nEBCDIC\n", "line 3: the third line must be ASCII or BINARY"},
        {"# vtk DataFile Version 3.0\nt\nASCII\nDATASET HYPERCUBE\nPOINTS 1 float\n0 0 0\n",
         "the data set kind HYPERCUBE is not supported"},
        {head + "POINT_DATA 3\n", "line 6: POINT_DATA gives 3 values, the data set has 2 points"},
        {head + "POINT_DATA 2\nSCALARS p float\nLOOKUP_TABLE default\n1 zwei\n", "line 9: \"zwei\" is not a number"},
        {head + "POINT_DATA 2\nSCALARS p float\nLOOKUP_TABLE default\n1 1,5\n", "\"1,5\" is not a number"},
        {head + "POINT_DATA 2\nSCALARS p float\nLOOKUP_TABLE default\n1\n", "the file ends before all values"},
        {head + "POINT_DATA 2\nSCALARS p float\nLOOKUP_TABLE default\n1 1e999\n", "is out of range"},
        {head + "POINT_DATA 2\nSCALARS p quaternion\n", "line 7: unknown data type \"quaternion\""},
        {head + "POINT_DATA 2\nSCALARS p float\n1 2\n", "LOOKUP_TABLE must follow SCALARS"},
        {"# vtk DataFile Version 3.0\nt\nASCII\nDATASET UNSTRUCTURED_GRID\nPOINTS 99999999999 float\n0 0 0\n",
         "more than the file holds"},
        {"# vtk DataFile Version 3.0\nt\nBINARY\nDATASET STRUCTURED_GRID\nDIMENSIONS 2 1 1\nPOINTS 2 float\n"
             + QByteArray(21, '\x01'),
         "line 7: the file ends inside binary data"},
        {"# vtk DataFile Version 3.0\nt\nBINARY\nDATASET STRUCTURED_GRID\nDIMENSIONS 2 1 1\nPOINTS 2 float\n\x01\x02",
         "more than the file holds"},
        {"# vtk DataFile Version 3.0\nt\nASCII\nDATASET POLYDATA\nPOINTS 0 float\n", "the data set has no points"},
        {"# vtk DataFile Version 3.0\nt\nBINARY\nDATASET STRUCTURED_POINTS\nDIMENSIONS 2000000 1000000 9\n",
         "line 5: the dimensions are too large"},
        {"# vtk DataFile Version 3.0\nt\nBINARY\nDATASET STRUCTURED_POINTS\nDIMENSIONS 1000000 1000 1\n",
         "more than the file holds"},
        {head + "POINT_DATA 2\nTEXTURE_COORDINATES t 99999999999 float\n", "1 to 64 components"},
        {"# vtk DataFile Version 3.0\nt\nASCII\n" + QByteArray(5000, 'D'), "longer than 4096 characters"},
        // One rule for every loader: values are finite, wherever they come from.
        {head + "POINT_DATA 2\nSCALARS p float\nLOOKUP_TABLE default\n1 inf\n",
         "line 9: \"inf\" is not a finite number"},
        {"# vtk DataFile Version 3.0\nt\nASCII\nDATASET STRUCTURED_POINTS\nDIMENSIONS 2 1 1\nSPACING inf 1 1\n",
         "line 6: SPACING's \"inf\" is not a finite number"},
        {"# vtk DataFile Version 3.0\nt\nASCII\nDATASET STRUCTURED_POINTS\nDIMENSIONS 3 1 1\nSPACING 1e308 1 1\n"
         "ORIGIN 1e308 0 0\nPOINT_DATA 3\n",
         "a point computed from ORIGIN and SPACING is not a finite number"},
        {"# vtk DataFile Version 3.0\nt\nBINARY\nDATASET POLYDATA\nPOINTS 1 float\n"
             + bigEndian<float>({0, std::numeric_limits<float>::infinity(), 0}),
         "line 6: binary value 2 here is not a finite number"},
    };
    for (const auto& [content, reason] : bad) {
        EXPECT_FALSE(load(content)) << content.left(60).toStdString();
        EXPECT_EQ(error.rfind(QFileInfo(path).fileName().toStdString(), 0), 0u) << error;
        EXPECT_NE(error.find(reason), std::string::npos) << error;
        EXPECT_EQ(data().title(), "Heated plate");
    }

    EXPECT_FALSE(
        DataLoaderRepository::getInstance().loaderNamed("VTK legacy")->load(folder.path().toStdString(), error));
    EXPECT_NE(error.find("is a folder"), std::string::npos) << error;
}

TEST_F(VtkLoading, HugeGridsAndPipesAreRefusedAtOnce)
{
    // Axis sizes whose product wraps to 0 in 64 bits: refused for what it is,
    // before any room for the points is asked for.
    QByteArray wraps = "# vtk DataFile Version 3.0\nt\nBINARY\nDATASET RECTILINEAR_GRID\n";
    for (const char* axis : {"X", "Y", "Z"}) {
        const int n = axis[0] == 'Z' ? 1 << 22 : 1 << 21;
        wraps += QByteArray(axis) + "_COORDINATES " + QByteArray::number(n) + " char\n" + QByteArray(n, '\0') + "\n";
    }
    EXPECT_FALSE(load(wraps));
    EXPECT_NE(error.find("the grid's sizes 2097152 x 2097152 x 4194304 give more points than can be counted"),
              std::string::npos)
        << error;
    EXPECT_EQ(data().title(), "Heated plate");

    // A pipe named like a VTK file would block the reader: refused before reading.
    const QString fifo = QDir(folder.path()).filePath("pipe.vtk");
    ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    EXPECT_FALSE(DataLoaderRepository::getInstance()
                     .loaderNamed("VTK legacy")
                     ->load(QFile::encodeName(fifo).toStdString(), error));
    EXPECT_NE(error.find("pipe.vtk"), std::string::npos) << error;
    EXPECT_EQ(data().title(), "Heated plate");
}

TEST_F(VtkLoading, DamagedSamplesAreEitherReadOrRefusedWithTheDataSetKept)
{
    std::mt19937 random(11);
    for (const QFileInfo& sample : QDir(ORRERY_TEST_SAMPLES).entryInfoList({"*.vtk"}, QDir::Files)) {
        QFile in(sample.absoluteFilePath());
        ASSERT_TRUE(in.open(QIODevice::ReadOnly));
        const QByteArray original = in.readAll();
        ASSERT_TRUE(load(original)) << error;
        for (int round = 0; round < 150; ++round) {
            QByteArray damaged = original;
            if (round % 3 == 0)
                damaged.truncate(int(random() % unsigned(original.size())));
            else
                for (int flips = 0; flips < 1 + round % 4; ++flips)
                    damaged[int(random() % unsigned(original.size()))] = char(random() % 256);
            Kernel::instance().setDataSet(orrery::kernel::DataSet("Kept", {"A"}));
            if (!load(damaged)) {
                EXPECT_EQ(data().title(), "Kept");
                EXPECT_EQ(error.rfind(QFileInfo(path).fileName().toStdString(), 0), 0u) << error;
            }
        }
    }
}

TEST_F(VtkLoading, ALongLoadReportsProgressAndCancellingItKeepsTheDataSet)
{
    const int n = 600000; // about 5 MB of doubles
    QByteArray file = "# vtk DataFile Version 3.0\nbig\nBINARY\nDATASET STRUCTURED_POINTS\n";
    file += "DIMENSIONS " + QByteArray::number(n) + " 1 1\nPOINT_DATA " + QByteArray::number(n)
            + "\nSCALARS s double\nLOOKUP_TABLE default\n";
    file += bigEndian(std::vector<double>(size_t(n), 1.0));
    std::vector<std::uint64_t> reports;
    LoadProgress::setHandler([&](std::uint64_t done, std::uint64_t total) {
        EXPECT_EQ(total, std::uint64_t(file.size()));
        reports.push_back(done);
        return false;
    });
    EXPECT_FALSE(load(file));
    LoadProgress::setHandler({});
    EXPECT_EQ(reports.size(), 1u);
    EXPECT_NE(error.find("cancelled"), std::string::npos) << error;
    EXPECT_EQ(data().title(), "Heated plate");

    EXPECT_TRUE(load(file)) << error;
    EXPECT_EQ(data().pointCount(1), size_t(n));
}

} // namespace
