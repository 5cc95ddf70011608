#pragma once

#include "files/diagram_file.h"
#include "platform/grid.h"
#include "session/documents.h"

#include <cstdint>
#include <iomanip>
#include <random>
#include <sstream>
#include <string>

// The document files by string streams, as one would write them first: the measure of the shipped readers and
// writers. For a point locale, plain ASCII and values of three decimals, so that nothing has to be rounded.
namespace dorvan::test {

class PlainReader {
public:
    explicit PlainReader(const std::string& bytes) : stream_(bytes) {}

    std::string line() {
        std::string text;
        std::getline(stream_, text);
        if (!text.empty() && text.back() == '\r') text.pop_back();
        return text;
    }
    void skip(int lines) {
        while (lines-- > 0) line();
    }
    std::string value() {
        const std::string text = line();
        return text.substr(text.find('=') + 1);
    }
    Names labels(std::int32_t count) {
        Names all(count);
        for (auto& label : all.Cells()) label = line();
        return all;
    }
    FloatTable table(std::int32_t rows, std::int32_t columns) {
        FloatTable values(rows, columns);
        for (std::int32_t i = 1; i <= rows; ++i) {
            std::istringstream fields(line());
            std::string field;
            for (std::int32_t j = 1; j <= columns; ++j) {
                std::getline(fields, field, ';');
                values(i, j) = field == "N/A" ? NaValue : std::stof(field);
            }
        }
        return values;
    }

private:
    std::istringstream stream_;
};

inline DocumentTables plainDataFile(const std::string& bytes) {
    PlainReader reader(bytes);
    DocumentTables tables;
    reader.skip(4);
    const int records = std::stoi(reader.value());
    const int variables = std::stoi(reader.value());
    reader.skip(2);
    tables.RecordNames = reader.labels(records);
    reader.skip(2);
    tables.VariableNames = reader.labels(variables);
    reader.skip(2);
    tables.DataValues = reader.table(records, variables);
    return tables;
}

inline DistanceMatrix plainMatrixFile(const std::string& bytes) {
    PlainReader reader(bytes);
    reader.skip(4);
    const auto n = static_cast<std::int16_t>(std::stoi(reader.value()));
    reader.skip(2);
    DistanceMatrix matrix{reader.labels(n), Array2<std::string>(n, n), n};
    reader.skip(2);
    const FloatTable values = reader.table(n, n);
    for (std::int32_t i = 1; i <= n; ++i)
        for (std::int32_t j = 1; j <= n; ++j) {
            std::ostringstream text;
            text << std::setprecision(7) << values(i, j);
            matrix.Cells(i, j) = text.str();
        }
    return matrix;
}

inline DocumentTables plainDiagramFile(const std::string& bytes) {
    PlainReader reader(bytes);
    DocumentTables tables;
    reader.skip(5);
    const int records = std::stoi(reader.value());
    const int variables = std::stoi(reader.value());
    reader.skip(10);
    tables.RecordNames = reader.labels(records);
    reader.skip(2);
    tables.VariableNames = reader.labels(variables);
    reader.skip(2);
    tables.DataValues = reader.table(records, variables);
    reader.skip(2);
    tables.DistanceValues = reader.table(records, records);
    return tables;
}

class PlainWriter {
public:
    PlainWriter() { stream_ << std::fixed << std::setprecision(3); }

    std::ostream& out() { return stream_; }
    void labels(const Names& names) {
        for (const auto& name : names.Cells()) stream_ << name << "\r\n";
    }
    void table(const FloatTable& values) {
        for (std::int32_t i = 1; i <= values.Rows(); ++i) {
            for (std::int32_t j = 1; j <= values.Columns(); ++j) {
                if (j > 1) stream_ << ";";
                if (values(i, j) == NaValue)
                    stream_ << "N/A";
                else
                    stream_ << values(i, j);
            }
            stream_ << "\r\n";
        }
    }
    std::string bytes() const { return stream_.str(); }

private:
    std::ostringstream stream_;
};

inline std::string plainDataBytes(const SheetTable& sheet, const std::string& description) {
    PlainWriter writer;
    writer.out() << "Dorvan DATA 3.3\r\n\r\n[HEADER]\r\nDescription=" << description
                 << "\r\nRecCount=" << sheet.RecordCount() << "\r\nVarCount=" << sheet.VariableCount()
                 << "\r\n\r\n[RECORD_LABEL]\r\n";
    writer.labels(sheet.RecordNames);
    writer.out() << "\r\n[VARIABLE_LABEL]\r\n";
    writer.labels(sheet.VariableNames);
    writer.out() << "\r\n[DATA]\r\n";
    FloatTable values(sheet.RecordCount(), sheet.VariableCount());
    for (std::size_t cell = 0; cell < values.Cells().size(); ++cell) {
        const std::string& text = sheet.Cells.Cells()[cell];
        values.Cells()[cell] = text == "N/A" ? NaValue : std::stof(text);
    }
    writer.table(values);
    return writer.bytes();
}

inline std::string plainMatrixBytes(const DistanceMatrix& matrix, const std::string& description) {
    PlainWriter writer;
    writer.out() << "Dorvan MATRIX 3.3\r\n\r\n[HEADER]\r\nDescription=" << description
                 << "\r\nRecCount=" << matrix.Size << "\r\n\r\n[RECORD_LABEL]\r\n";
    writer.labels(matrix.Names);
    writer.out() << "\r\n[MATRIX]\r\n";
    FloatTable values(matrix.Size, matrix.Size);
    for (std::int32_t i = 1; i <= matrix.Size; ++i)
        for (std::int32_t j = 1; j <= matrix.Size; ++j) values(i, j) = std::stof(matrix.Cells(i, j));
    writer.table(values);
    return writer.bytes();
}

inline std::string plainDiagramBytes(const DiagramDocument& document, const std::string& description) {
    PlainWriter writer;
    writer.out() << "Dorvan DIAGRAM 3.3\r\n\r\n[HEADER]\r\nType=0\r\nDescription=" << description
                 << "\r\nRecCount=" << document.RecCount << "\r\nVarCount=" << document.VarCount << "\r\n";
    for (int k = 1; k <= 4; ++k)
        writer.out() << "SecLimit_" << k << "=" << document.SectionLimits(k) << "\r\n";
    writer.out() << "DistType=" << document.DistType << "\r\nDiagType=" << document.DiagType
                 << "\r\nPar_R=0\r\nPar_P=0\r\n\r\n[RECORD_LABEL]\r\n";
    writer.labels(document.RecordNames);
    writer.out() << "\r\n[VARIABLE_LABEL]\r\n";
    writer.labels(document.VariableNames);
    writer.out() << "\r\n[DATA]\r\n";
    writer.table(document.Data);
    writer.out() << "\r\n[MATRIX]\r\n";
    writer.table(document.Matrix);
    return writer.bytes();
}

// Documents of n records by m variables with random values of three decimals, one in 50 of the data missing.
struct RandomDocuments {
    RandomDocuments(std::int16_t n, std::int16_t m, std::uint32_t seed) : random_(seed) {
        fillDiagram(n, m);
        fillMatrix();
        fillSheet();
    }

    DiagramDocument Diagram;
    DistanceMatrix Matrix;
    SheetTable Sheet;

private:
    float thousandths(std::uint32_t most) {
        return static_cast<float>(static_cast<double>(random_() % most) / 1000.0);
    }
    static std::string threeDecimals(float value) {
        std::ostringstream text;
        text << std::fixed << std::setprecision(3) << value;
        return value == NaValue ? "N/A" : text.str();
    }
    void fillDiagram(std::int16_t n, std::int16_t m) {
        Diagram.RecCount = n;
        Diagram.VarCount = m;
        Diagram.DistType = 3;
        Diagram.DiagType = 2;
        for (int k = 1; k <= 4; ++k) Diagram.SectionLimits(k) = static_cast<float>(k) * 2.5f;
        for (int i = 1; i <= n; ++i) Diagram.RecordNames.Append("Record " + std::to_string(i));
        for (int j = 1; j <= m; ++j) Diagram.VariableNames.Append("VAR " + std::to_string(j));
        Diagram.Data = FloatTable(n, m);
        for (float& value : Diagram.Data.Cells())
            value = random_() % 50 == 0 ? NaValue : thousandths(1000000) - 500.0f;
        Diagram.Matrix = FloatTable(n, n);
        for (int i = 1; i <= n; ++i)
            for (int j = i + 1; j <= n; ++j)
                Diagram.Matrix(i, j) = Diagram.Matrix(j, i) = thousandths(100000);
    }
    void fillMatrix() {
        const std::int16_t n = Diagram.RecCount;
        Matrix = {Diagram.RecordNames, Array2<std::string>(n, n), n};
        for (std::size_t cell = 0; cell < Matrix.Cells.Cells().size(); ++cell)
            Matrix.Cells.Cells()[cell] = threeDecimals(Diagram.Matrix.Cells()[cell]);
    }
    void fillSheet() {
        Sheet = SheetTable(Diagram.RecCount, Diagram.VarCount);
        Sheet.RecordNames = Diagram.RecordNames;
        Sheet.VariableNames = Diagram.VariableNames;
        for (std::size_t cell = 0; cell < Sheet.Cells.Cells().size(); ++cell)
            Sheet.Cells.Cells()[cell] = threeDecimals(Diagram.Data.Cells()[cell]);
    }

    std::mt19937 random_;
};

} // namespace dorvan::test
