#pragma once

// How large the boxes of a diagram are shown. The heads, its numbers and names, keep their size.
namespace dorvan {

// The square of boxes that a diagram shows.
struct DiagramBoxes {
    int Count = 0; // along a side
    int Side = 0;  // of a box at 100 percent, in twips
};

// What the screen has for them. Lengths in twips.
struct DiagramRoom {
    double Width = 0;
    double Height = 0;
    double Pixel = 15; // of the screen
};

// The percentage at which all boxes are in sight, each as many whole pixels wide, at least one; 100 at most.
double FittingPercent(const DiagramBoxes& boxes, const DiagramRoom& room);

class DiagramZoom {
public:
    static constexpr double Least = 6; // a box is one pixel
    static constexpr double Most = 400;

    double Percent() const { return percent_; }
    bool Fits() const { return fits_; }

    // To the next step above or below; no further than the last one.
    void In();
    void Out();
    void Actual(); // 100 percent

    // All of the diagram, now and, until another step is chosen, in every room to come.
    void Fit(const DiagramBoxes& boxes);

    void SetRoom(const DiagramRoom& room, const DiagramBoxes& boxes);

private:
    void Take(double percent);

    double percent_ = 100;
    bool fits_ = false;
    DiagramRoom room_;
};

} // namespace dorvan
