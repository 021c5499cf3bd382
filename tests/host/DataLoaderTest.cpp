#include <clocale>
#include <cstdio>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <limits>
#include <memory>
#include <fstream>
#include <string>
#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>
#include <QDir>
#include <QTemporaryDir>
#include "host/kernel/Kernel.h"
#include "host/loaders/CsvDataLoader.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "host/loaders/LoadProgress.h"
#include "host/loaders/TextTableDataLoader.h"
#include "host/loaders/NumberText.h"
#include "tests/support/TestSupport.h"

using namespace orrery::sdk;
using orrery::kernel::DataSet;
using orrery::kernel::Kernel;
using testsupport::SampleKernelTest;
using namespace std::string_literals;

namespace {

class DataLoading : public SampleKernelTest
{
protected:
    std::string write(const std::string& name, const std::string& content)
    {
        const std::string path = QDir(folder.path()).path().toStdString() + "/" + name;
        std::ofstream(path, std::ios::binary) << content;
        return path;
    }
    bool load(const std::string& loaderName, const std::string& name, const std::string& content)
    {
        return loadPath(loaderName, write(name, content));
    }
    bool loadPath(const std::string& loaderName, const std::string& path)
    {
        error.clear();
        return DataLoaderRepository::getInstance().loaderNamed(loaderName)->load(path, error);
    }
    std::string summary(const std::string& loaderName)
    {
        return DataLoaderRepository::getInstance().loaderNamed(loaderName)->lastLoadSummary();
    }
    const DataSet& data() { return Kernel::instance().dataSet(); }
    std::vector<std::string> names()
    {
        std::vector<std::string> all;
        for (int v = 1; v <= data().numVars(); ++v)
            all.push_back(data().varName(v));
        return all;
    }
    // The values of a variable with missing ones as -999, so that they compare.
    std::vector<double> column(int var)
    {
        std::vector<double> values = data().values(1, var);
        for (double& v : values)
            v = DataSet::isMissing(v) ? -999 : v;
        return values;
    }

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

TEST_F(DataLoading, SpreadsheetExportsLoadWithQuotingLineEndsAndMarks)
{
    // Quoted header, CRLF, a byte-order mark, an empty cell, blank lines at the end.
    ASSERT_TRUE(load("CSV table", "export.csv", "\xEF\xBB\xBF\"x\",\"y\",\"z\"\r\n1,2,3\r\n4,,6\r\n\r\n\r\n")) << error;
    EXPECT_EQ((std::vector<std::string>{"x", "y", "z"}), names());
    EXPECT_EQ((std::vector<double>{2, -999}), column(2));
    EXPECT_EQ("export", data().zoneName(1));

    // Delimiters, doubled quotes and line breaks inside quoted cells.
    ASSERT_TRUE(load("CSV table", "quoted.csv", "name,\"a, \"\"b\"\"\"\n\"two\nlines\",1\nplain,2\n")) << error;
    EXPECT_EQ((std::vector<std::string>{"name", "a, \"b\""}), names());
    EXPECT_EQ((std::vector<std::string>{"two\nlines", "plain"}), data().categories(1));
    EXPECT_EQ((std::vector<double>{1, 2}), column(2));

    // A European export: semicolons and decimal commas.
    ASSERT_TRUE(load("CSV table", "europe.csv", "x;y\n1,5;2,5\n-0,25;1e3\n")) << error;
    EXPECT_EQ((std::vector<double>{1.5, -0.25}), column(1));
    EXPECT_EQ((std::vector<double>{2.5, 1000}), column(2));
    EXPECT_EQ("semicolon-separated, decimal comma, header row", summary("CSV table"));

    ASSERT_TRUE(load("CSV table", "tabs.csv", "t\tvalue\n0\t1,5\n1\t2,5\n")) << error;
    EXPECT_EQ((std::vector<double>{1.5, 2.5}), column(2));
    EXPECT_EQ("tab-separated, decimal comma, header row", summary("CSV table"));

    ASSERT_TRUE(load("CSV table", "spaced.csv", "  a   b\n 1.5  2\n3 4\n")) << error;
    EXPECT_EQ((std::vector<double>{1.5, 3}), column(1));
    EXPECT_EQ("separated by spaces, decimal point, header row", summary("CSV table"));

    ASSERT_TRUE(load("Text table", "run.dat", "t   T\n0\t300\n# a comment\n1  310\n")) << error;
    EXPECT_EQ((std::vector<double>{300.0, 310.0}), column(2));
}

TEST_F(DataLoading, MissingValuesTextColumnsAndHeadersAreRecognised)
{
    ASSERT_TRUE(load("CSV table", "gaps.csv", "a,b,c\n1,NA,\n2,N/A,nan\n-,NaN,-\n4,-,\n")) << error;
    EXPECT_EQ((std::vector<double>{1, 2, -999, 4}), column(1));
    EXPECT_EQ(4u, data().missingCount(1, 2)); // a column entirely missing is still loaded
    EXPECT_EQ(4u, data().missingCount(1, 3));
    EXPECT_EQ("comma-separated, decimal point, header row, 9 missing values", summary("CSV table"));

    ASSERT_TRUE(load("CSV table", "iris.csv",
                     "sepal_length,species\n5.1,Iris-setosa\n7.0,Iris-versicolor\n4.9,Iris-setosa\n,\n"))
        << error;
    EXPECT_EQ((std::vector<std::string>{"Iris-setosa", "Iris-versicolor"}), data().categories(2));
    EXPECT_EQ((std::vector<double>{1, 2, 1, -999}), column(2));
    EXPECT_TRUE(data().categories(1).empty());
    EXPECT_EQ("comma-separated, decimal point, header row, species as 2 categories, 2 missing values",
              summary("CSV table"));

    // Numbers only: generated names. A text column without a header is data, not names.
    ASSERT_TRUE(load("CSV table", "bare.csv", "1,2\n3,4\n")) << error;
    EXPECT_EQ((std::vector<std::string>{"V1", "V2"}), names());
    EXPECT_EQ((std::vector<double>{1, 3}), column(1));
    ASSERT_TRUE(load("CSV table", "labels.csv", "red,1\nblue,2\n")) << error;
    EXPECT_EQ((std::vector<std::string>{"V1", "V2"}), names());
    EXPECT_EQ((std::vector<std::string>{"red", "blue"}), data().categories(1));

    // Duplicate and empty names are made unique.
    ASSERT_TRUE(load("CSV table", "names.csv", "x,,x,x_2,\n1,2,3,4,5\n")) << error;
    EXPECT_EQ((std::vector<std::string>{"x", "V2", "x_2", "x_2_2", "V5"}), names());

    // A column entirely missing in the first lines decides by its first value.
    std::string late = "a,b\n";
    for (int i = 0; i < 60; ++i)
        late += "1,\n";
    ASSERT_TRUE(load("CSV table", "late.csv", late + "3,low\n4,7\n")) << error;
    EXPECT_EQ((std::vector<std::string>{"low", "7"}), data().categories(2));
}

TEST_F(DataLoading, BadFilesAreRefusedWithFileLineAndColumnAndChangeNothing)
{
    ASSERT_TRUE(load("CSV table", "good.csv", "a,b\n1,2\n"));
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"a,b\n1,2\n3\n", "ragged.csv, line 3, column 2: 1 value where 2 were expected."},
        {"a,b\n1,2,3,4\n", "ragged.csv, line 2, column 3: 4 values where 2 were expected."},
        {"a,b\n1,2\n\"3,4\n5,6\n",
         "ragged.csv, line 3, column 1: a quoted cell is not closed before the end of the file."},
        {"a,b\n1,\"2\"x\n", "ragged.csv, line 2, column 2: text follows the closing quote of a cell."},
        {"a,b\n1,2\n3,4\x00\x01\n"s, "ragged.csv, line 3, column 2: byte 0x00 does not belong in a text file."},
        {"x,y\n1,2\n3,abc\n", "ragged.csv, line 3, column 2: \"abc\" is not a number."},
        {"x,y\n1,2\n3,1e999\n", "ragged.csv, line 3, column 2: \"1e999\" is out of range: a value must lie within "
                                "+-1.8e308 and not round to zero."},
        {"x,y\n1,2\n3,inf\n",
         "ragged.csv, line 3, column 2: \"inf\" is not a finite number; only finite decimal numbers are read."},
        {"x,y\n1,2\n3,0x1p3\n",
         "ragged.csv, line 3, column 2: \"0x1p3\" is hexadecimal; only decimal numbers are read."},
        {"a,b\n", "ragged.csv holds no rows of values."},
        {"a,b\n1;2;3\n4 5\n6,7,8,9\n1\t2\t3\t4\t5\n",
         "ragged.csv: cannot tell how the values are separated: tried tab, semicolon, comma and spaces; none gives the "
         "same number of values on most of the first 5 lines."},
    };
    for (const auto& [content, message] : cases) {
        EXPECT_FALSE(load("CSV table", "ragged.csv", std::string(content.data(), content.size())));
        EXPECT_EQ(message, error);
    }
    EXPECT_EQ((std::vector<std::string>{"a", "b"}), names());

    EXPECT_FALSE(load("Text table", "bad.txt", "a b\n1 2\n3 two\n"));
    EXPECT_EQ("bad.txt, line 3, column 2: \"two\" is not a number.", error);
    EXPECT_FALSE(load("Zone blocks", "bad.zbk", "ZONE z\n1 2\n"));
    EXPECT_EQ("bad.zbk, line 1, column 1: a zone starts before the VARIABLES line.", error);
    EXPECT_FALSE(load("Zone blocks", "bad.zbk", "VARIABLES X Y\nZONE z\n1 nan\n"));
    EXPECT_EQ("bad.zbk, line 3, column 2: \"nan\" is not a finite number; only finite decimal numbers are read.",
              error);
    EXPECT_FALSE(load("Zone blocks", "bad.zbk", "VARIABLES X Y\nZONE z\n1 2 3\n"));
    EXPECT_EQ("bad.zbk, line 3, column 3: more values than the 2 variables.", error);
    EXPECT_EQ((std::vector<std::string>{"a", "b"}), names());
}

TEST_F(DataLoading, HugeCellsFoldersAndOddNamesGiveShortClearMessages)
{
    ASSERT_TRUE(load("CSV table", "good.csv", "a,b\n1,2\n"));
    const std::string bigCell(1000000, '7');
    EXPECT_FALSE(load("CSV table", "big.csv", "a,b\n1," + bigCell + "\n"));
    EXPECT_EQ("big.csv, line 2, column 2: a cell longer than 65536 characters.", error);

    // A long bad field is quoted as a short excerpt, control bytes escaped.
    EXPECT_FALSE(load("CSV table", "long.csv", "a,b\n1,2\n3,\"x\ty" + std::string(5000, 'z') + "\"\n"));
    EXPECT_EQ(
        "long.csv, line 3, column 2: \"x\\x09yzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz...\" (5003 characters) is not "
        "a number.",
        error);

    QDir(folder.path()).mkdir("sub.csv");
    EXPECT_FALSE(loadPath("CSV table", folder.path().toStdString() + "/sub.csv"));
    EXPECT_EQ("Cannot read sub.csv: it is a folder, not a file of data.", error);
    EXPECT_FALSE(loadPath("Zone blocks", folder.path().toStdString() + "/missing.zbk"));
    EXPECT_EQ("Cannot open missing.zbk: No such file or directory.", error);
    EXPECT_EQ((std::vector<std::string>{"a", "b"}), names());

    // A name that is not UTF-8 opens, and messages show its bytes escaped.
    ASSERT_TRUE(load("CSV table", "name_\xE9\xFF.csv", "p,q\n1,2\n")) << error;
    EXPECT_EQ((std::vector<std::string>{"p", "q"}), names());
    EXPECT_FALSE(load("CSV table", "name_\xE9\xFF.csv", "p,q\n1\n"));
    EXPECT_NE(std::string::npos, error.find("name_\\xE9\\xFF.csv, line 2")) << error;
    std::remove(write("name_\xE9\xFF.csv", "").c_str()); // a name the temporary folder cannot remove
}

TEST_F(DataLoading, CellsAcrossBlockBoundariesAndLongLinesKeepEveryValue)
{
    // Rows of varying width so that cells, quotes and CRLF pairs straddle the
    // reader's block boundaries somewhere.
    std::string content = "id,\"label\",value\r\n";
    std::vector<double> expected;
    for (int i = 0; content.size() < 3 * 1024 * 1024; ++i) {
        const double value = i * 0.125 - 1e-3 * (i % 7);
        content += std::to_string(i) + ",\"row " + std::string(i % 13, '"') + std::string(i % 13, '"') + "\","
                   + std::to_string(value) + "\r\n";
        expected.push_back(std::stod(std::to_string(value)));
    }
    ASSERT_TRUE(load("CSV table", "long.csv", content)) << error;
    ASSERT_EQ(expected.size(), data().pointCount(1));
    EXPECT_EQ(expected, column(3));
    ASSERT_EQ(13u, data().categories(2).size());
    EXPECT_EQ("row \"\"\"", data().categories(2)[3]);

    // One line holding thousands of columns, longer than a block.
    std::string header, row;
    for (int c = 0; c < 16000; ++c) {
        header += (c ? "," : "") + std::string("c") + std::to_string(c) + std::string(60, 'n');
        row += (c ? "," : "") + std::to_string(c) + ".5";
    }
    ASSERT_TRUE(load("CSV table", "wide.csv", header + "\n" + row + "\n")) << error;
    ASSERT_EQ(16000, data().numVars());
    EXPECT_EQ(15999.5, data().values(1, 16000)[0]);

    EXPECT_FALSE(load("CSV table", "wider.csv", std::string(16385 * 2, ',').replace(0, 1, "1") + "\n"));
    EXPECT_EQ("wider.csv, line 1, column 16385: more than 16384 columns.", error);
}

TEST_F(DataLoading, RunningOutOfMemoryIsAClearErrorAndKeepsTheDataSet)
{
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the address sanitizer's allocator does not throw when memory runs out";
#endif
    ASSERT_TRUE(load("CSV table", "good.csv", "a,b\n1,2\n"));
    // 15 million rows need 120 MB as doubles; allow the process 48 MB more than it has.
    std::string rows;
    rows.reserve(30000000);
    for (int i = 0; i < 15000000; ++i)
        rows += "7\n";
    const std::string path = write("huge.csv", rows);
    rows = std::string();
    std::ifstream statm("/proc/self/statm");
    long long pages = 0;
    statm >> pages;
    rlimit before{};
    ASSERT_EQ(0, getrlimit(RLIMIT_AS, &before));
    const rlimit limit{static_cast<rlim_t>(pages * sysconf(_SC_PAGESIZE) + (48 << 20)), before.rlim_max};
    ASSERT_EQ(0, setrlimit(RLIMIT_AS, &limit));
    const bool loaded = loadPath("Text table", path);
    setrlimit(RLIMIT_AS, &before); // the tests after this one in the same process need their memory

    EXPECT_FALSE(loaded);
    EXPECT_EQ("Not enough memory to load huge.csv.", error);
    EXPECT_EQ((std::vector<std::string>{"a", "b"}), names());
}

TEST_F(DataLoading, NumbersAreReadAlikeUnderACommaDecimalLocale)
{
    // Build a German numeric locale of our own; the system may have none installed.
    const std::string locales = folder.path().toStdString() + "/locales";
    ASSERT_TRUE(QDir().mkpath(QString::fromStdString(locales)));
    ASSERT_EQ(0,
              std::system(("localedef -i de_DE -f ISO-8859-1 " + locales + "/de_DE.ISO-8859-1 2>/dev/null").c_str()));
    setenv("LOCPATH", locales.c_str(), 1);
    ASSERT_NE(nullptr, std::setlocale(LC_ALL, "de_DE.ISO-8859-1"));
    EXPECT_EQ(1.0, std::strtod("1.5", nullptr)); // the locale is in force

    EXPECT_TRUE(load("CSV table", "de.csv", "x,y\n1.5,2.25\n")) << error;
    const std::vector<double> y = column(2);
    EXPECT_TRUE(load("Zone blocks", "de.zbk", "VARIABLES x\nZONE a\n-1.5e-3\n")) << error;
    const std::vector<double> x = column(1);
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(std::vector<double>{2.25}, y);
    EXPECT_EQ(std::vector<double>{-1.5e-3}, x);
}

TEST(NumberRule, DecimalNumbersOnlyAndEachRefusalNamesItsRule)
{
    using V = NumberText::Verdict;
    struct Case
    {
        const char* text;
        bool comma;
        V verdict;
        double value;
    };
    const Case cases[] = {
        {"1e-310", false, V::Number, 1e-310},  {"+2.5", false, V::Number, 2.5},
        {"-.5", false, V::Number, -0.5},       {"1,5", true, V::Number, 1.5},
        {"1e-400", false, V::OutOfRange, 0},   {"-1e309", false, V::OutOfRange, 0},
        {"NaN", false, V::NotFinite, 0},       {"-Infinity", false, V::NotFinite, 0},
        {"0X1P3", false, V::Hexadecimal, 0},   {"1,5", false, V::WrongDecimalMark, 0},
        {"1.5", true, V::WrongDecimalMark, 0}, {"1e", false, V::NotANumber, 0},
        {"+-1", false, V::NotANumber, 0},      {"", false, V::NotANumber, 0},
        {"1 2", false, V::NotANumber, 0},
    };
    for (const Case& c : cases) {
        double value = 0;
        EXPECT_EQ(c.verdict, NumberText::parse(c.text, c.comma, value)) << c.text;
        if (c.verdict == V::Number) {
            EXPECT_EQ(c.value, value) << c.text;
        }
    }
    for (const char* token : {"", "NA", "na", "N/A", "NaN", "nan", "-"})
        EXPECT_TRUE(NumberText::isMissingToken(token)) << token;
    for (const char* token : {"--", "NAN1", "none", "0"})
        EXPECT_FALSE(NumberText::isMissingToken(token)) << token;
}

TEST_F(DataLoading, PlainRowsReadEveryNumberExactlyAndKeepLinesCounted)
{
    // Numbers of every shape the fast route takes or must hand on: long
    // mantissas, extreme exponents, signs, zeros, more than 19 digits.
    const char* shapes[] = {"%.17g", "%.6f", "%.3e", "%+.0f", "%.22e", "%.1f", "%g"};
    const char* specials[] = {"-0",
                              "0e5",
                              "9007199254740993",
                              "1e22",
                              "1e23",
                              "1e-22",
                              "4.9e-324",
                              "123456789012345678901",
                              "0.30000000000000004",
                              "+.5",
                              "5.",
                              "1.7976931348623157e308",
                              "-2.2250738585072014e-308"};
    std::string content = "a,b,c\n", blankSeparated;
    std::vector<std::vector<std::string>> cells(3);
    unsigned state = 7;
    for (int row = 0; row < 20000; ++row) {
        for (int c = 0; c < 3; ++c) {
            state = state * 1103515245u + 12345u;
            char text[64];
            if (state % 17 == 0) {
                std::snprintf(text, sizeof text, "%s", specials[(state >> 8) % std::size(specials)]);
            } else {
                const double magnitude = std::pow(10.0, static_cast<int>((state >> 4) % 40) - 20);
                std::snprintf(text, sizeof text, shapes[(state >> 12) % std::size(shapes)],
                              ((state >> 16) / 65536.0 - 0.5) * magnitude);
            }
            cells[c].push_back(text);
            content += text + std::string(c < 2 ? "," : row % 3 ? "\n" : "\r\n");
            blankSeparated += std::string(c == 0 && row % 2 ? " " : "") + text
                              + (c < 2     ? " \t "
                                 : row % 3 ? "\n"
                                           : " \r\n");
        }
    }
    for (const auto& [loader, file] :
         {std::make_pair("CSV table", content), std::make_pair("Text table", blankSeparated)}) {
        ASSERT_TRUE(load(loader, "exact.csv", file)) << error;
        ASSERT_EQ(20000u, data().pointCount(1));
        for (int c = 0; c < 3; ++c)
            for (size_t r = 0; r < cells[c].size(); ++r) {
                double expected = 0;
                ASSERT_EQ(NumberText::Verdict::Number, NumberText::parse(cells[c][r], false, expected)) << cells[c][r];
                ASSERT_EQ(0, std::memcmp(&expected, &data().values(1, c + 1)[r], sizeof expected)) << cells[c][r];
            }
    }

    // Plain rows between rows the field-by-field reader takes: order, gaps and
    // line numbers come out the same, whichever reader took a row.
    std::string mixed = "x;y\n";
    for (int row = 0; row < 5000; ++row)
        mixed += row % 100 == 7 ? "\n# note\n \"" + std::to_string(row) + "\" ; NA\n"
                                : std::to_string(row) + ";" + std::to_string(row) + ",5\n";
    ASSERT_TRUE(load("CSV table", "mixed.csv", mixed)) << error;
    const std::vector<double> x = column(1), y = column(2);
    ASSERT_EQ(5000u, x.size());
    for (int row = 0; row < 5000; ++row) {
        ASSERT_EQ(row, x[row]);
        ASSERT_EQ(row % 100 == 7 ? -999 : row + 0.5, y[row]);
    }
    EXPECT_FALSE(load("CSV table", "late.csv", mixed + "1;2;3\n"));
    EXPECT_EQ("late.csv, line " + std::to_string(5002 + 2 * 50) + ", column 3: 3 values where 2 were expected.", error);
}

TEST_F(DataLoading, ALongFileReadInTwoPartsGivesWhatOnePartGives)
{
    // Semicolons with decimal commas, and runs of blanks with blanks before some rows.
    struct Format
    {
        std::string separator, mark, indent;
        std::unique_ptr<DelimitedTableLoader> onePart, twoParts;
    };
    Format formats[] = {
        {";", ",", "", std::make_unique<CsvDataLoader>(), std::make_unique<CsvDataLoader>()},
        {" \t", ".", "  ", std::make_unique<TextTableDataLoader>(), std::make_unique<TextTableDataLoader>()}};
    for (Format& format : formats) {
        SCOPED_TRACE("separator '" + format.separator + "'");
        const std::string& sep = format.separator;
        // Header, comments, blank lines and gaps in the first half, so that the
        // second half's rows must move up to follow the first half's last row.
        std::string content = "\xEF\xBB\xBFt" + sep + "p" + sep + "q\r\n# logged\r\n\r\n";
        for (int row = 0; content.size() < (3 << 20); ++row) {
            content += (row % 5 ? "" : format.indent) + std::to_string(row) + sep + std::to_string(row / 4)
                       + format.mark + std::to_string(row % 4 * 25) + sep + (row % 97 ? "1" + format.mark + "5" : "NA");
            content += row % 1000 == 3 ? "\r\n\r\n# gap\n" : "\r\n";
        }
        const std::string path = write("two.csv", content);
        format.onePart->readInTwoPartsFrom(std::numeric_limits<long long>::max());
        format.twoParts->readInTwoPartsFrom(1);
        const auto loadWith = [&](DelimitedTableLoader& loader, const std::string& file) {
            error.clear();
            return loader.load(file, error);
        };
        ASSERT_TRUE(loadWith(*format.onePart, path)) << error;
        const std::vector<std::vector<double>> expected = {column(1), column(2), column(3)};
        ASSERT_TRUE(loadWith(*format.twoParts, path)) << error;
        EXPECT_EQ(format.onePart->lastLoadSummary(), format.twoParts->lastLoadSummary());
        ASSERT_EQ(expected[0].size(), data().pointCount(1));
        for (int c = 0; c < 3; ++c)
            EXPECT_EQ(expected[c], column(c + 1)) << "column " << c + 1;

        // A fault late in the file is reported at the same line and column
        // either way; a fault in each half reports the first.
        const size_t lineStart = content.find('\n', content.size() * 3 / 4) + 1;
        for (const std::string& fault :
             {"7" + sep + "x" + sep + "1\r\n", "7" + sep + "8\r\n", "7" + sep + "8" + sep + "9" + sep + "10\r\n",
              "7" + sep + "\x01" + sep + "9\r\n"}) {
            std::string bad = content;
            bad.insert(lineStart, fault);
            for (const std::string& file : {write("bad.csv", bad), write("worse.csv", bad.insert(200, fault))}) {
                EXPECT_FALSE(loadWith(*format.onePart, file));
                const std::string oneError = error;
                EXPECT_FALSE(loadWith(*format.twoParts, file));
                EXPECT_EQ(oneError, error);
                EXPECT_EQ(expected[0].size(), data().pointCount(1)) << "the data set is kept";
            }
        }

        // Progress is heard as the blocks come in, and cancelling stops both parts.
        for (DelimitedTableLoader* loader : {format.onePart.get(), format.twoParts.get()}) {
            std::vector<std::uint64_t> reports;
            LoadProgress::setHandler([&](std::uint64_t done, std::uint64_t total) {
                EXPECT_EQ(content.size(), total);
                reports.push_back(done);
                return reports.size() < 2;
            });
            EXPECT_FALSE(loadWith(*loader, write("cancelled.csv", content)));
            LoadProgress::setHandler({});
            EXPECT_EQ("Loading cancelled.csv was cancelled.", error);
            ASSERT_EQ(2u, reports.size());
            EXPECT_LT(reports[0], reports[1]);
            EXPECT_EQ(expected[0].size(), data().pointCount(1)) << "the data set is kept";
        }
    }

    // Short files split anyway: a first half without values, or with text, is read in one part after all.
    CsvDataLoader onePart, twoParts;
    onePart.readInTwoPartsFrom(std::numeric_limits<long long>::max());
    twoParts.readInTwoPartsFrom(1);
    for (const std::string& content :
         {"a,b\n# " + std::string(100, 'c') + "\n1,2\n3,4\n", "a,b\nx,1\ny,2\nz,3\n"s, "a,b\n1,2\n3,4\n5,6\n7,8\n"s}) {
        const std::string path = write("short.csv", content);
        ASSERT_TRUE(onePart.load(path, error)) << error;
        const std::vector<std::vector<double>> expected = {column(1), column(2)};
        ASSERT_TRUE(twoParts.load(path, error)) << error;
        EXPECT_EQ(expected, (std::vector<std::vector<double>>{column(1), column(2)})) << content;
    }
}

TEST_F(DataLoading, ATwoPartReadCountsEveryLineEndAndReservesOnlyWhatTheBytesHold)
{
    CsvDataLoader twoParts;
    twoParts.readInTwoPartsFrom(1);
    // Old Mac line ends (a lone CR), alone or mixed with the others, end lines in the first half too.
    for (const std::string& content : {"a,b\r1,2\r3,4\r5,6\r\n7,8\n9,10\r11,12\r13,14\n"s,
                                       "1,2\r3,4\r5,6\r7,8\r9,10\r11,12\r13,14\r15,16\n17,18\n19,20\n"s}) {
        ASSERT_TRUE(twoParts.load(write("mac.csv", content), error)) << error;
        EXPECT_EQ(column(2).back(), column(1).back() + 1);
        EXPECT_EQ(column(1).size(), content[0] == 'a' ? 7u : 10u);
    }

    // One row of 64 values and many blank lines: room for a row per line would
    // be 64 values a line, far beyond what the file's bytes can hold.
    std::string wide;
    for (int c = 1; c <= 64; ++c)
        wide += std::to_string(c) + (c < 64 ? "," : "\n");
    wide += std::string(400000, '\n');
    const size_t mappedBefore = mallinfo2().hblkhd;
    ASSERT_TRUE(twoParts.load(write("wide.csv", wide), error)) << error;
    EXPECT_EQ(column(64), std::vector<double>{64});
    EXPECT_LT(mallinfo2().hblkhd, mappedBefore + (16 << 20)) << "room for 400,000 rows of 64 values was taken";
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

TEST_F(DataLoading, EverySampleShapeLoadsWithItsNamesGapsAndValues)
{
    const std::string samples = std::string(ORRERY_SOURCE_DIR) + "/demo/samples/";
    struct Expected
    {
        const char* file;
        const char* loader;
        std::vector<std::string> names;
        int var;                    // whose values are checked
        std::vector<double> values; // missing ones as -999
        std::string summary;
    };
    const std::vector<Expected> all = {
        {"spreadsheet-export.csv",
         "CSV table",
         {"Time (s)", "Voltage", "Current"},
         3,
         {0, 0.012, -999, 0.037, 0.049},
         "comma-separated, decimal point, header row, 1 missing value"},
        {"semicolon-decimal-comma.csv",
         "CSV table",
         {"Messpunkt", "Temperatur", "Druck"},
         2,
         {21.5, 22.25, -0.5, 23},
         "semicolon-separated, decimal comma, header row, 1 missing value"},
        {"tab-separated.csv",
         "CSV table",
         {"depth", "salinity", "temperature"},
         3,
         {18.2, 17.9, 16.5, 12.1},
         "tab-separated, decimal point, header row"},
        {"text-column.csv",
         "CSV table",
         {"species", "sepal_length", "sepal_width", "petal_length", "petal_width"},
         1,
         {1, 1, 2, 2, 3, 3},
         "comma-separated, decimal point, header row, species as 3 categories"},
        {"missing-values.csv",
         "CSV table",
         {"station", "rain_mm", "snow_cm", "wind_kmh"},
         2,
         {12.5, -999, 3, 0},
         "comma-separated, decimal point, header row, 6 missing values"},
        {"numbers-only.csv",
         "CSV table",
         {"V1", "V2", "V3"},
         3,
         {1, 0.5403, -0.4161, -0.99},
         "comma-separated, decimal point, no header row"},
        {"quoted-names.csv",
         "CSV table",
         {"Sample ID", "Note, free text", "Mass \"g\"", "Mass"},
         4,
         {12.4, 12.9, 12.7},
         "comma-separated, decimal point, header row, Sample ID as 3 categories, Note, free text as 3 categories"},
        {"duplicate-names.csv",
         "CSV table",
         {"t", "value", "value_2", "V4", "t_2"},
         4,
         {100, 200},
         "comma-separated, decimal point, header row"},
        {"whitespace-columns.txt",
         "Text table",
         {"x", "y", "z"},
         3,
         {1.5, 2.5, 3.5},
         "separated by spaces, decimal point, header row"},
    };
    for (const Expected& sample : all) {
        SCOPED_TRACE(sample.file);
        ASSERT_TRUE(loadPath(sample.loader, samples + sample.file)) << error;
        EXPECT_EQ(sample.names, names());
        EXPECT_EQ(sample.values, column(sample.var));
        EXPECT_EQ(sample.summary, summary(sample.loader));
    }
    ASSERT_TRUE(loadPath("CSV table", samples + "quoted-names.csv")) << error;
    EXPECT_EQ((std::vector<std::string>{"first run, calm", "second run\ntwo lines", "quote \"here\""}),
              data().categories(2));
}
