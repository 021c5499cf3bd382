#include "host/loaders/VtkLegacyDataLoader.h"
#include <QtGlobal>
#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstdio>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>
#include "host/kernel/DataSet.h"
#include "host/kernel/Kernel.h"
#include "host/loaders/FileBlockReader.h"
#include "host/loaders/LoadGuard.h"
#include "host/loaders/LoadProgress.h"

namespace orrery {
namespace sdk {

namespace {

const std::size_t MaxLine = 4096; // header lines; values have their own limit

struct Failure
{
    std::string text;
};

// The file as header lines, ASCII value tokens and binary runs, read a block
// at a time. Throws Failure with the file and line named.
class VtkStream
{
public:
    explicit VtkStream(FileBlockReader& file)
        : m_file(file), m_size(static_cast<std::uint64_t>(file.size())),
          m_buffer(new char[VtkLegacyDataLoader::BlockSize])
    {}

    [[noreturn]] void fail(const std::string& why) const
    {
        throw Failure{m_file.displayName() + ", line " + std::to_string(m_current) + ": " + why};
    }

    std::uint64_t remaining() const { return m_size - m_consumed; }

    // The next line that is not blank, without its end; false at the end of the file.
    bool line(std::string& text)
    {
        for (;;) {
            text.clear();
            m_current = m_line;
            int c;
            bool any = false;
            while ((c = get()) != EOF) {
                any = true;
                if (c == '\n')
                    break;
                if (text.size() == MaxLine)
                    fail("a line is longer than " + std::to_string(MaxLine) + " characters; this is not a VTK file.");
                text += static_cast<char>(c);
            }
            if (c == '\n')
                ++m_line;
            if (!text.empty() && text.back() == '\r')
                text.pop_back();
            if (text.find_first_not_of(" \t") != std::string::npos)
                return true;
            if (!any)
                return false;
        }
    }

    // The next whitespace-separated word, for ASCII values.
    std::string_view token()
    {
        int c;
        while ((c = get()) != EOF && (c == ' ' || c == '\t' || c == '\n' || c == '\r'))
            if (c == '\n')
                ++m_line;
        m_current = m_line;
        if (c == EOF)
            fail("the file ends before all values were read.");
        m_token.clear();
        do {
            if (m_token.size() == 64)
                fail("a value is longer than 64 characters.");
            m_token += static_cast<char>(c);
        } while ((c = peek()) != EOF && c != ' ' && c != '\t' && c != '\n' && c != '\r' && (get(), true));
        return m_token;
    }

    // Exactly n bytes.
    void bytes(char* out, std::size_t n)
    {
        m_current = m_line;
        while (n > 0) {
            if (m_at == m_end && !fill())
                fail("the file ends inside binary data.");
            const std::size_t take = std::min(n, m_end - m_at);
            std::memcpy(out, m_buffer.get() + m_at, take);
            m_at += take;
            m_consumed += take;
            out += take;
            n -= take;
        }
    }

private:
    // A read error or a cancelled load ends the load with the reader's message.
    bool fill()
    {
        m_at = 0;
        std::string error;
        if (!m_file.read(m_buffer.get(), VtkLegacyDataLoader::BlockSize, m_end, error))
            throw Failure{error};
        return m_end > 0;
    }
    int get()
    {
        if (m_at == m_end && !fill())
            return EOF;
        ++m_consumed;
        return static_cast<unsigned char>(m_buffer[m_at++]);
    }
    int peek()
    {
        if (m_at == m_end && !fill())
            return EOF;
        return static_cast<unsigned char>(m_buffer[m_at]);
    }

    FileBlockReader& m_file;
    std::uint64_t m_size;
    std::unique_ptr<char[]> m_buffer;
    std::size_t m_at = 0, m_end = 0;
    std::uint64_t m_consumed = 0;
    long m_line = 1;
    long m_current = 1; // the line that messages name
    std::string m_token;
};

std::vector<std::string> words(const std::string& line)
{
    std::vector<std::string> out;
    std::size_t at = 0;
    while ((at = line.find_first_not_of(" \t", at)) != std::string::npos) {
        const std::size_t end = std::min(line.find_first_of(" \t", at), line.size());
        out.push_back(line.substr(at, end - at));
        at = end;
    }
    return out;
}

std::string upper(std::string text)
{
    for (char& c : text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

enum class Kind
{
    Char,
    UChar,
    Short,
    UShort,
    Int,
    UInt,
    Int64,
    UInt64,
    Float,
    Double
};

struct Type
{
    Kind kind;
    std::size_t size;
};

Type typeNamed(VtkStream& in, const std::string& name)
{
    static const std::pair<const char*, Type> types[] = {{"char", {Kind::Char, 1}},
                                                         {"unsigned_char", {Kind::UChar, 1}},
                                                         {"short", {Kind::Short, 2}},
                                                         {"unsigned_short", {Kind::UShort, 2}},
                                                         {"int", {Kind::Int, 4}},
                                                         {"unsigned_int", {Kind::UInt, 4}},
                                                         {"long", {Kind::Int64, 8}},
                                                         {"unsigned_long", {Kind::UInt64, 8}},
                                                         {"vtkidtype", {Kind::Int, 4}},
                                                         {"vtktypeint64", {Kind::Int64, 8}},
                                                         {"vtktypeuint64", {Kind::UInt64, 8}},
                                                         {"float", {Kind::Float, 4}},
                                                         {"double", {Kind::Double, 8}}};
    std::string lower = name;
    for (char& c : lower)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    for (const auto& [n, t] : types)
        if (lower == n)
            return t;
    in.fail("unknown data type \"" + name.substr(0, 30) + "\".");
}

std::uint64_t wholeNumber(VtkStream& in, const std::string& text, const char* what)
{
    std::uint64_t n = 0;
    const auto [end, err] = std::from_chars(text.data(), text.data() + text.size(), n);
    if (err != std::errc() || end != text.data() + text.size())
        in.fail(std::string(what) + " must be a whole number, not \"" + text.substr(0, 30) + "\".");
    return n;
}

// One rule for every loader: a value must be finite (NaN stands for a missing one).
std::string notFinite(const std::string& what)
{
    return what + " is not a finite number; only finite numbers are read.";
}

class Reader
{
public:
    Reader(VtkStream& in, bool binary) : m_in(&in), m_binary(binary) {}

    // n values of type t, into out[0..n) (out may be null to read past them).
    void values(const Type& t, std::uint64_t n, double* out)
    {
        const std::uint64_t least = m_binary ? t.size : 2;
        if (n > m_in->remaining() / least + 1)
            m_in->fail("the header promises " + std::to_string(n) + " values, more than the file holds.");
        if (!m_binary) {
            for (std::uint64_t i = 0; i < n; ++i) {
                const std::string_view word = m_in->token();
                double v = 0.0;
                const char* begin = word.data();
                const char* end = begin + word.size();
                if (begin != end && *begin == '+')
                    ++begin;
                auto [stop, err] = std::from_chars(begin, end, v);
                if (err == std::errc::result_out_of_range)
                    m_in->fail("the value \"" + std::string(word) + "\" is out of range.");
                if (err != std::errc() || stop != end) {
                    // Writers put nan for missing values.
                    std::string lowerWord(word);
                    for (char& c : lowerWord)
                        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
                    if (lowerWord == "nan" || lowerWord == "-nan")
                        v = std::nan("");
                    else
                        m_in->fail("\"" + std::string(word).substr(0, 30) + "\" is not a number.");
                }
                if (std::isinf(v))
                    m_in->fail(notFinite("\"" + std::string(word).substr(0, 30) + "\""));
                if (out)
                    out[i] = v;
            }
            return;
        }
        unsigned char raw[4096];
        const std::uint64_t perRun = sizeof raw / t.size;
        for (std::uint64_t done = 0; done < n;) {
            const std::uint64_t run = std::min(perRun, n - done);
            m_in->bytes(reinterpret_cast<char*>(raw), static_cast<std::size_t>(run * t.size));
            for (std::uint64_t i = 0; i < run; ++i) {
                const double v = decode(t, raw + i * t.size);
                if (std::isinf(v))
                    m_in->fail(notFinite("binary value " + std::to_string(done + i + 1) + " here"));
                if (out)
                    out[done + i] = v;
            }
            done += run;
        }
    }

private:
    static double decode(const Type& t, const unsigned char* p)
    {
        std::uint64_t bits = 0;
        if (t.size == 8) {
            std::memcpy(&bits, p, 8);
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
            bits = __builtin_bswap64(bits);
#endif
        } else if (t.size == 4) {
            std::uint32_t b32;
            std::memcpy(&b32, p, 4);
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
            b32 = __builtin_bswap32(b32);
#endif
            bits = b32;
        } else {
            for (std::size_t i = 0; i < t.size; ++i)
                bits = (bits << 8) | p[i];
        }
        switch (t.kind) {
        case Kind::Char: return static_cast<std::int8_t>(bits);
        case Kind::UChar: return static_cast<std::uint8_t>(bits);
        case Kind::Short: return static_cast<std::int16_t>(bits);
        case Kind::UShort: return static_cast<std::uint16_t>(bits);
        case Kind::Int: return static_cast<std::int32_t>(bits);
        case Kind::UInt: return static_cast<std::uint32_t>(bits);
        case Kind::Int64: return static_cast<double>(static_cast<std::int64_t>(bits));
        case Kind::UInt64: return static_cast<double>(bits);
        case Kind::Float: {
            const std::uint32_t b32 = static_cast<std::uint32_t>(bits);
            float f;
            std::memcpy(&f, &b32, sizeof f);
            return f;
        }
        case Kind::Double: {
            double d;
            std::memcpy(&d, &bits, sizeof d);
            return d;
        }
        }
        return 0.0;
    }

    VtkStream* m_in;
    bool m_binary;
};

class VtkFile
{
public:
    VtkFile(VtkStream& in) : m_in(in), m_read(in, false) {}

    kernel::DataSet read()
    {
        std::string line;
        if (!m_in.line(line) || line.rfind("# vtk DataFile", 0) != 0)
            m_in.fail("this is not a legacy VTK file (it must start with \"# vtk DataFile\").");
        // Version 5 and later write cells as typed offsets and connectivity.
        const std::size_t version = line.find("Version ");
        m_version5 = version != std::string::npos && line.size() > version + 8 && line[version + 8] >= '5'
                     && line[version + 8] <= '9';
        if (!m_in.line(line))
            m_in.fail("the file ends after its first line.");
        m_title = line.substr(line.find_first_not_of(" \t"));
        if (!m_in.line(line))
            m_in.fail("the file ends before ASCII or BINARY.");
        const std::string format = upper(words(line).at(0));
        if (format != "ASCII" && format != "BINARY")
            m_in.fail("the third line must be ASCII or BINARY, not \"" + line.substr(0, 30) + "\".");
        m_binaryFlag = format == "BINARY";
        m_read = Reader(m_in, m_binaryFlag);
        if (!m_in.line(line) || upper(words(line).at(0)) != "DATASET" || words(line).size() < 2)
            m_in.fail("a DATASET line must follow.");
        m_kind = upper(words(line)[1]);
        readGeometry();
        readAttributes();
        if (m_points == 0)
            m_in.fail("the data set has no points.");
        kernel::DataSet data(m_title.empty() ? "VTK data" : m_title, m_names);
        data.addZone(m_kind, std::move(m_columns));
        return data;
    }

private:
    void setPoints(std::uint64_t n)
    {
        // Every point takes at least a byte of the file, even where its
        // coordinates are computed (its point data is in the file), so a few
        // damaged header digits cannot ask for terabytes.
        if (n > m_in.remaining() + (1u << 22))
            m_in.fail("the header promises " + std::to_string(n) + " points, more than the file holds.");
        m_points = n;
        for (const char* axis : {"X", "Y", "Z"}) {
            m_names.push_back(axis);
            m_columns.emplace_back();
            m_columns.back().reserve(n);
        }
    }

    void readPointCoordinates(const std::vector<std::string>& w)
    {
        if (w.size() < 3)
            m_in.fail("POINTS takes a count and a type.");
        const std::uint64_t n = wholeNumber(m_in, w[1], "The point count");
        const Type t = typeNamed(m_in, w[2]);
        if (m_points && n != m_points)
            m_in.fail("POINTS gives " + std::to_string(n) + " points, the dimensions " + std::to_string(m_points)
                      + ".");
        if (!m_points)
            setPoints(n);
        // Coordinates are stored interleaved; read them a block at a time and spread them.
        std::vector<double> block(3 * 4096);
        for (std::uint64_t done = 0; done < n;) {
            const std::uint64_t run = std::min<std::uint64_t>(4096, n - done);
            m_read.values(t, 3 * run, block.data());
            for (std::uint64_t i = 0; i < run; ++i)
                for (int a = 0; a < 3; ++a)
                    m_columns[a].push_back(block[3 * i + a]);
            done += run;
        }
    }

    // The points of a grid of these sizes, where their product can be counted.
    std::uint64_t gridPoints(const std::uint64_t dims[3]) const
    {
        std::uint64_t n = 1;
        for (int a = 0; a < 3; ++a)
            if (__builtin_mul_overflow(n, dims[a], &n))
                m_in.fail("the grid's sizes " + std::to_string(dims[0]) + " x " + std::to_string(dims[1]) + " x "
                          + std::to_string(dims[2]) + " give more points than can be counted.");
        return n;
    }

    void readGeometry()
    {
        std::uint64_t dims[3] = {0, 0, 0};
        double origin[3] = {0, 0, 0}, spacing[3] = {1, 1, 1};
        std::vector<double> axes[3];
        std::string line;
        while (m_in.line(line)) {
            const std::vector<std::string> w = words(line);
            const std::string key = upper(w[0]);
            if (key == "POINT_DATA" || key == "CELL_DATA") {
                m_pending = line;
                break;
            }
            if (key == "DIMENSIONS") {
                if (w.size() < 4)
                    m_in.fail("DIMENSIONS takes three counts.");
                for (int a = 0; a < 3; ++a)
                    dims[a] = std::max<std::uint64_t>(wholeNumber(m_in, w[a + 1], "A dimension"), 1);
                if (dims[0] > (1u << 20) || dims[1] > (1u << 20) || dims[2] > (1u << 20))
                    m_in.fail("the dimensions are too large.");
                if (m_kind == "STRUCTURED_GRID" && dims[0] * dims[1] * dims[2] > m_in.remaining())
                    m_in.fail("the dimensions promise more points than the file holds.");
            } else if (key == "ORIGIN" || key == "SPACING" || key == "ASPECT_RATIO") {
                if (w.size() < 4)
                    m_in.fail(key + " takes three numbers.");
                double* into = key == "ORIGIN" ? origin : spacing;
                for (int a = 0; a < 3; ++a) {
                    const auto [end, err] =
                        std::from_chars(w[a + 1].data(), w[a + 1].data() + w[a + 1].size(), into[a]);
                    if (err != std::errc() || end != w[a + 1].data() + w[a + 1].size())
                        m_in.fail(key + " takes three numbers, not \"" + w[a + 1].substr(0, 30) + "\".");
                    if (!std::isfinite(into[a]))
                        m_in.fail(notFinite(key + "'s \"" + w[a + 1].substr(0, 30) + "\""));
                }
            } else if (key == "POINTS") {
                readPointCoordinates(w);
            } else if (key == "X_COORDINATES" || key == "Y_COORDINATES" || key == "Z_COORDINATES") {
                if (w.size() < 3)
                    m_in.fail(key + " takes a count and a type.");
                const int a = key[0] - 'X';
                const std::uint64_t n = wholeNumber(m_in, w[1], "The coordinate count");
                if (dims[a] && n != dims[a])
                    m_in.fail(key + " gives " + std::to_string(n) + " values, DIMENSIONS " + std::to_string(dims[a])
                              + ".");
                if (n > m_in.remaining())
                    m_in.fail(key + " promises more values than the file holds.");
                axes[a].resize(n);
                m_read.values(typeNamed(m_in, w[2]), n, axes[a].data());
            } else if (key == "CELLS" || key == "VERTICES" || key == "LINES" || key == "POLYGONS"
                       || key == "TRIANGLE_STRIPS" || key == "CELL_TYPES") {
                skipCells(w);
            } else if (key == "METADATA") {
                skipMetadata();
            } else if (key == "FIELD") {
                readField(w, 0);
            } else {
                m_in.fail("unexpected \"" + line.substr(0, 40) + "\" in the " + m_kind + " geometry.");
            }
        }

        if (m_kind == "STRUCTURED_POINTS" || m_kind == "RECTILINEAR_GRID") {
            if (m_kind == "RECTILINEAR_GRID")
                for (int a = 0; a < 3; ++a) {
                    if (axes[a].empty())
                        m_in.fail("the rectilinear grid lacks its coordinates.");
                    dims[a] = axes[a].size();
                }
            if (!dims[0])
                m_in.fail("the " + m_kind + " data set has no DIMENSIONS.");
            setPoints(gridPoints(dims));
            for (std::uint64_t k = 0; k < dims[2]; ++k)
                for (std::uint64_t j = 0; j < dims[1]; ++j)
                    for (std::uint64_t l = 0; l < dims[0]; ++l) {
                        const std::uint64_t at[3] = {l, j, k};
                        for (int a = 0; a < 3; ++a) {
                            const double v = axes[a].empty() ? origin[a] + spacing[a] * double(at[a]) : axes[a][at[a]];
                            if (std::isinf(v))
                                m_in.fail(notFinite("a point computed from ORIGIN and SPACING"));
                            m_columns[a].push_back(v);
                        }
                    }
        } else if (m_kind != "STRUCTURED_GRID" && m_kind != "UNSTRUCTURED_GRID" && m_kind != "POLYDATA") {
            m_in.fail("the data set kind " + m_kind.substr(0, 30) + " is not supported.");
        }
    }

    void skipCells(const std::vector<std::string>& w)
    {
        const std::string key = upper(w[0]);
        if (w.size() < (key == "CELL_TYPES" ? 2u : 3u))
            m_in.fail(key + " takes its counts.");
        const Type intType{Kind::Int, 4};
        if (key == "CELL_TYPES") {
            m_read.values(intType, wholeNumber(m_in, w[1], "The cell count"), nullptr);
            return;
        }
        const std::uint64_t second = wholeNumber(m_in, w[2], "The cell list size");
        if (!m_version5) {
            m_read.values(intType, second, nullptr);
            return;
        }
        std::string line;
        if (!m_in.line(line) || words(line).size() < 2 || upper(words(line)[0]) != "OFFSETS")
            m_in.fail("OFFSETS must follow " + key + " in a version 5 file.");
        m_read.values(typeNamed(m_in, words(line)[1]), wholeNumber(m_in, w[1], "The offset count"), nullptr);
        if (!m_in.line(line) || words(line).size() < 2 || upper(words(line)[0]) != "CONNECTIVITY")
            m_in.fail("CONNECTIVITY must follow OFFSETS.");
        m_read.values(typeNamed(m_in, words(line)[1]), second, nullptr);
    }

    // Descriptions of the array before; not kept. Ends at the first line that
    // is not part of it, which is left for the caller.
    void skipMetadata()
    {
        std::string line;
        while (m_in.line(line)) {
            const std::vector<std::string> w = words(line);
            const std::string key = upper(w[0]);
            if (key == "INFORMATION") {
                const std::uint64_t n = w.size() > 1 ? wholeNumber(m_in, w[1], "The information count") : 0;
                for (std::uint64_t i = 0; i < 2 * n; ++i)
                    if (!m_in.line(line))
                        m_in.fail("the file ends inside METADATA.");
            } else if (key == "COMPONENT_NAMES") {
                if (!m_in.line(line))
                    m_in.fail("the file ends inside METADATA.");
            } else {
                m_pending = line;
                return;
            }
        }
    }

    // Arrays of point data (for points >= 1) or cell data (points == 0: skipped).
    void readAttributes()
    {
        std::string line;
        std::uint64_t size = 0;
        bool pointData = false;
        while (!m_pending.empty() || m_in.line(line)) {
            if (!m_pending.empty()) {
                line = m_pending;
                m_pending.clear();
            }
            const std::vector<std::string> w = words(line);
            const std::string key = upper(w[0]);
            if (key == "POINT_DATA" || key == "CELL_DATA") {
                if (w.size() < 2)
                    m_in.fail(key + " takes a count.");
                size = wholeNumber(m_in, w[1], "The count");
                pointData = key == "POINT_DATA";
                if (pointData && size != m_points)
                    m_in.fail("POINT_DATA gives " + std::to_string(size) + " values, the data set has "
                              + std::to_string(m_points) + " points.");
                continue;
            }
            if (!size && key != "METADATA")
                m_in.fail("\"" + line.substr(0, 40) + "\" outside POINT_DATA or CELL_DATA.");
            const std::string name = w.size() > 1 ? w[1] : "";
            if (key == "SCALARS") {
                if (w.size() < 3)
                    m_in.fail("SCALARS takes a name and a type.");
                const std::uint64_t components = w.size() > 3 ? wholeNumber(m_in, w[3], "The component count") : 1;
                if (components < 1 || components > 4)
                    m_in.fail("SCALARS takes 1 to 4 components.");
                const Type t = typeNamed(m_in, w[2]);
                if (!m_in.line(line))
                    m_in.fail("the file ends after SCALARS.");
                if (upper(words(line)[0]) != "LOOKUP_TABLE")
                    m_in.fail("LOOKUP_TABLE must follow SCALARS.");
                readArray(name, t, components, size, pointData, {});
            } else if (key == "VECTORS" || key == "NORMALS") {
                if (w.size() < 3)
                    m_in.fail(key + " takes a name and a type.");
                readArray(name, typeNamed(m_in, w[2]), 3, size, pointData, {"_X", "_Y", "_Z"});
            } else if (key == "TENSORS") {
                if (w.size() < 3)
                    m_in.fail("TENSORS takes a name and a type.");
                readArray(name, typeNamed(m_in, w[2]), 9, size, pointData, {});
            } else if (key == "TEXTURE_COORDINATES") {
                if (w.size() < 4)
                    m_in.fail("TEXTURE_COORDINATES takes a name, a dimension and a type.");
                readArray(name, typeNamed(m_in, w[3]), wholeNumber(m_in, w[2], "The dimension"), size, pointData, {});
            } else if (key == "COLOR_SCALARS") {
                if (w.size() < 3)
                    m_in.fail("COLOR_SCALARS takes a name and a count.");
                const std::uint64_t n = wholeNumber(m_in, w[2], "The component count");
                if (n < 1 || n > 4)
                    m_in.fail("COLOR_SCALARS takes 1 to 4 components.");
                // Binary colours are bytes, ASCII ones numbers from 0 to 1.
                readArray(name, m_binary() ? Type{Kind::UChar, 1} : Type{Kind::Float, 4}, n, size, pointData, {});
            } else if (key == "LOOKUP_TABLE") {
                if (w.size() < 3)
                    m_in.fail("LOOKUP_TABLE takes a name and a size.");
                readArray(name, m_binary() ? Type{Kind::UChar, 1} : Type{Kind::Float, 4}, 4,
                          wholeNumber(m_in, w[2], "The table size"), false, {});
            } else if (key == "FIELD") {
                readField(w, pointData ? size : 0);
            } else if (key == "METADATA") {
                skipMetadata();
            } else {
                m_in.fail("unexpected \"" + line.substr(0, 40) + "\".");
            }
        }
    }

    void readField(const std::vector<std::string>& w, std::uint64_t pointTuples)
    {
        if (w.size() < 3)
            m_in.fail("FIELD takes a name and an array count.");
        const std::uint64_t arrays = wholeNumber(m_in, w[2], "The array count");
        std::string line;
        for (std::uint64_t a = 0; a < arrays; ++a) {
            if (!m_in.line(line))
                m_in.fail("the file ends inside FIELD.");
            if (upper(words(line)[0]) == "METADATA") {
                skipMetadata();
                if (m_pending.empty())
                    m_in.fail("the file ends inside FIELD.");
                line = m_pending;
                m_pending.clear();
            }
            const std::vector<std::string> g = words(line);
            if (g.size() < 4)
                m_in.fail("a field array takes a name, components, tuples and a type.");
            const std::uint64_t components = wholeNumber(m_in, g[1], "The component count");
            const std::uint64_t tuples = wholeNumber(m_in, g[2], "The tuple count");
            if (components < 1 || components > 64)
                m_in.fail("a field array takes 1 to 64 components.");
            readArray(g[0], typeNamed(m_in, g[3]), components, tuples, pointTuples && tuples == m_points, {});
        }
    }

    bool m_binary() const { return m_binaryFlag; }

    void readArray(const std::string& name, const Type& t, std::uint64_t components, std::uint64_t tuples, bool keep,
                   std::vector<std::string> suffixes)
    {
        if (components < 1 || components > 64)
            m_in.fail("an array takes 1 to 64 components, not " + std::to_string(components) + ".");
        if (tuples > m_in.remaining() + 1)
            m_in.fail("the header promises " + std::to_string(tuples) + " values, more than the file holds.");
        if (!keep) {
            m_read.values(t, components * tuples, nullptr);
            return;
        }
        if (m_names.size() + components > 4096)
            m_in.fail("more than 4096 variables.");
        const std::size_t first = m_columns.size();
        for (std::uint64_t c = 0; c < components; ++c) {
            std::string varName = name;
            if (components > 1)
                varName += c < suffixes.size() ? suffixes[c] : "_" + std::to_string(c + 1);
            m_names.push_back(varName);
            m_columns.emplace_back();
            m_columns.back().reserve(tuples);
        }
        std::vector<double> block(components * 4096);
        for (std::uint64_t done = 0; done < tuples;) {
            const std::uint64_t run = std::min<std::uint64_t>(4096, tuples - done);
            m_read.values(t, components * run, block.data());
            for (std::uint64_t i = 0; i < run; ++i)
                for (std::uint64_t c = 0; c < components; ++c)
                    m_columns[first + c].push_back(block[components * i + c]);
            done += run;
        }
    }

    VtkStream& m_in;
    Reader m_read;
    bool m_binaryFlag = false;
    std::string m_title;
    std::string m_kind;
    bool m_version5 = false;
    std::string m_pending;
    std::uint64_t m_points = 0;
    std::vector<std::string> m_names;
    std::vector<std::vector<double>> m_columns;
};

} // namespace

DataLoaderInterface::Properties VtkLegacyDataLoader::properties() const
{
    // Shown translated in the loader chooser's context; settings keep this name.
    return {QT_TRANSLATE_NOOP("ChooseLoader", "VTK legacy"),
            "Points and point data of legacy VTK files (ASCII or binary)",
            {"vtk"}};
}

bool VtkLegacyDataLoader::load(const std::string& path, std::string& error)
{
    return LoadGuard::run(path, error, [&] {
        FileBlockReader file;
        if (!file.open(path, error))
            return false;
        file.setBlockHook([&file](long long offset) {
            return LoadProgress::report(static_cast<std::uint64_t>(offset), static_cast<std::uint64_t>(file.size()));
        });
        try {
            VtkStream in(file);
            kernel::Kernel::instance().setDataSet(VtkFile(in).read());
            return true;
        } catch (const Failure& failure) {
            error = failure.text;
            return false;
        }
    });
}

} // namespace sdk
} // namespace orrery
