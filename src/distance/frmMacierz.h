#pragma once

#include "session/grid_window.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace dorvan {

// The window that shows one matrix of distances. The matrix itself is `MatrixDocuments(Index)`; the grid
// shows its cells through "###0.000" and is read-only.
class frmMacierz : public GridWindow {
public:
    static constexpr std::string_view Kind = DocumentKind::Matrix;

    // Of a column without a factor, in twips. Narrow, for many distances side by side; the screen narrows a
    // number that is wider.
    static constexpr int BaseColumnWidth = 520;

    explicit frmMacierz(Session& session);

    DistanceMatrix& Document();

    // Builds the grid from the document and shows the description.
    void Present(const std::string& description);

    // The same with the numbers (Size by Size) that the document's cells are the text of: the screen then
    // shows digits that the text has no room for. The value columns are wide enough for the highest number,
    // or as wide as told, in twips.
    void PresentDistances(const FloatTable& distances, const std::string& description);
    void PresentDistances(const FloatTable& distances, const std::string& description, int columnWidth);

    void BottomText_Change(); // after any change of the text
    void BottomText_KeyPress(int& keyAscii);

    // Saves under the path; an empty one asks for it.
    void SaveMatrix(const std::string& path);
    void SaveMatrixNew(const std::string& path);

    void ExportMatrix(); // to delimited text
    void ExportMatrixToExcel();
    void PrintMatrix();

    void Form_Activate() override;
    void Form_Deactivate() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;
    void Form_Resize() override;

private:
    void LayOutColumns(int valueColumnWidth);
    void FillGrid(const FloatTable& distances);
};

// The width of value columns, in twips, for numbers whose longest text has so many characters.
int MatrixColumnWidth(std::size_t textLength);

frmMacierz& MatrixWindow(Session& session, std::int16_t slot);

} // namespace dorvan
