#include "desktop/form_faces.h"
#include "desktop/picture_widget.h"
#include "platform/twips.h"
#include "view/frmHistogram.h"
#include "view/histogram_drawing.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QRadioButton>
#include <QVBoxLayout>

namespace dorvan {

namespace {

constexpr int LimitWidth = 70; // pixels, room for eight characters

// The scale under the limits: short lines, a longer one at each limit.
class ScaleRule : public QWidget {
public:
    explicit ScaleRule(QWidget* parent) : QWidget(parent) { setFixedHeight(12); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::WindowText));
        constexpr int steps = 25;
        for (int step = 0; step <= steps; ++step) {
            const int x = step * (width() - 1) / steps;
            painter.drawLine(x, 0, x, step % 5 == 0 ? 10 : 5);
        }
    }
};

void AddOptions(FormFace& face, frmHistogram& form, QHBoxLayout& row) {
    auto* frame = new QGroupBox(ToQt(form.Frame1.Caption), &face);
    face.Binder().Plain(frame, form.Frame1, frame->title());
    auto* column = new QVBoxLayout(frame);
    for (OptionButton* option : {&form.Option1, &form.Option2}) {
        auto* button = new QRadioButton(frame);
        face.Binder().Option(button, *option);
        column->addWidget(button);
    }
    column->addStretch();
    row.addWidget(frame);
}

void AddChart(FormFace& face, frmHistogram& form, QHBoxLayout& row) {
    auto* chart = new PictureWidget(form.Picture1, PictureWidget::Kind::Graph, &face);
    chart->setFixedSize(PixelsOf(HistogramWidth), PixelsOf(HistogramHeight));
    face.Binder().Plain(chart, form.Picture1, "Histogram of the distances");
    face.Binder().Also([chart] { chart->Mirror(); });
    row.addWidget(chart);
}

using KeyPress = void (frmHistogram::*)(int& keyAscii);

struct Limit {
    TextBox& Box;
    KeyPress Press;
    const char* Name;
};

void AddLimits(FormFace& face, frmHistogram& form) {
    auto* frame = new QGroupBox(ToQt(form.Frame3.Caption), &face);
    face.Binder().Plain(frame, form.Frame3, frame->title());
    auto* column = new QVBoxLayout(frame);
    auto* row = new QHBoxLayout;
    column->addLayout(row);
    const auto addLabel = [&](const Label& label) {
        auto* shown = new QLabel(frame);
        face.Binder().Text(shown, label);
        row->addWidget(shown);
    };
    addLabel(form.Label1);
    addLabel(form.Label2);
    const Limit limits[] = {{form.Text1, &frmHistogram::Text1_KeyPress, "Limit of I and II"},
                            {form.Text2, &frmHistogram::Text2_KeyPress, "Limit of II and III"},
                            {form.Text3, &frmHistogram::Text3_KeyPress, "Limit of III and IV"},
                            {form.Text4, &frmHistogram::Text4_KeyPress, "Limit of IV and V"}};
    const Label* behind[] = {&form.Label3, &form.Label4, &form.Label5, &form.Label6};
    for (std::size_t number = 0; number < std::size(limits); ++number) {
        const Limit& limit = limits[number];
        auto* field = new QLineEdit(frame);
        field->setFixedWidth(LimitWidth);
        face.Binder().Field(field, limit.Box, limit.Name,
                            {.change = {},
                             .keyPress = [&form, press = limit.Press](int& key) { (form.*press)(key); },
                             .keyDown = {},
                             .lostFocus = {}});
        row->addWidget(field);
        addLabel(*behind[number]);
    }
    addLabel(form.Label7);
    column->addWidget(new ScaleRule(frame));
    face.Column().addWidget(frame);
}

void LayOut(FormFace& face, frmHistogram& form) {
    auto* row = new QHBoxLayout;
    face.Column().addLayout(row);
    AddOptions(face, form, *row);
    AddChart(face, form, *row);
    AddLimits(face, form);
    face.AddButtons({{&form.Command1, [&form] { form.Command1_Click(); }},
                     {&form.Command2, [&form] { form.Command2_Click(); }},
                     {&form.Command3, [&form] { form.Command3_Click(); }}});
}

const FaceOfForm<frmHistogram> registered(LayOut);

} // namespace

} // namespace dorvan
