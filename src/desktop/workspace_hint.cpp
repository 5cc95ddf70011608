#include "desktop/workspace_hint.h"

#include "desktop/qt_text.h"
#include "program/open_document.h"

#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMdiArea>
#include <QPushButton>
#include <QVBoxLayout>

namespace dorvan {

namespace {

constexpr int Margin = 16; // pixels

} // namespace

WorkspaceHint::WorkspaceHint(QMdiArea& area, Session& session, frmMDI& shell, EventDispatch& dispatch,
                             const std::string& sample)
    : QWidget(area.parentWidget()), area_(area), session_(session), dispatch_(dispatch) {
    setObjectName("WorkspaceHint");
    setAccessibleName("Start");
    setAutoFillBackground(true); // the workspace is dark
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    auto* text =
        new QLabel("A table of records and variables becomes a diagram:\nAnalysis, Make Diagram.", this);
    text->setAlignment(Qt::AlignCenter);
    column->addWidget(text);
    AddButton("HintNew", "New sheet (Ctrl+N)", [&shell] { shell.MenuClick("mnuFNew"); });
    AddButton("HintOpen", "Open a file (Ctrl+O)", [&shell] { shell.MenuClick("mnuFData"); });
    if (QFileInfo::exists(ToQt(sample)))
        AddButton("HintSample", "Open a sample", [&session, sample] { OpenDocument(session, sample); });
    area.installEventFilter(this);
    dispatch.AddMirror(this, [this] { Mirror(); });
    Mirror();
    Place();
}

void WorkspaceHint::AddButton(const char* name, const QString& text, std::function<void()> click) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, [this, click = std::move(click)] { dispatch_.Run(click); });
    layout()->addWidget(button);
}

void WorkspaceHint::Mirror() {
    setVisible(session_.Children.empty());
    if (isVisible()) raise();
}

void WorkspaceHint::Place() {
    const QRect room = area_.geometry();
    resize(sizeHint());
    move(room.left() + (room.width() - width()) / 2, room.top() + (room.height() - height()) / 3);
}

bool WorkspaceHint::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move) Place();
    return false;
}

} // namespace dorvan
