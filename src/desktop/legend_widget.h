#pragma once

#include "program/status_line.h"

#include <QWidget>

#include <vector>

namespace dorvan {

// The symbols of a diagram's classes beside their distances, on one line.
class LegendWidget : public QWidget {
public:
    explicit LegendWidget(QWidget* parent);

    void Show(std::vector<LegendEntry> entries); // hidden where there are none

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int WidthOf(const LegendEntry& entry) const;

    std::vector<LegendEntry> entries_;
};

} // namespace dorvan
