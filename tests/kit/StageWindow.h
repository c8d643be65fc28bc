// A window with content that notes what reaches it, and a stage over it.
#pragma once

#include "kit/SheetStage.h"
#include "kit/WorkSheet.h"
#include "support/Person.h"

#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QVBoxLayout>

/// Notes every drop.
class DropField : public QWidget {
public:
    int drops = 0;

    explicit DropField(QWidget *parent)
        : QWidget(parent)
    {
        setAcceptDrops(true);
    }

protected:
    void dragEnterEvent(QDragEnterEvent *event) override { event->acceptProposedAction(); }
    void dragMoveEvent(QDragMoveEvent *event) override { event->acceptProposedAction(); }
    void dropEvent(QDropEvent *event) override
    {
        ++drops;
        event->acceptProposedAction();
    }
};

class StageWindow : public QMainWindow {
public:
    QWidget *const content = new QWidget(this);
    QLineEdit *const field = new QLineEdit(content);
    QPushButton *const button = new QPushButton(content);
    DropField *const drops = new DropField(content);
    SheetStage *stage = nullptr;
    int clicks = 0;

    StageWindow()
    {
        auto *column = new QVBoxLayout(content);
        column->addWidget(field);
        column->addWidget(button);
        column->addWidget(drops, 1);
        setCentralWidget(content);
        stage = new SheetStage(content);
        connect(button, &QPushButton::clicked, this, [this] { ++clicks; });
        resize(700, 400);
        show();
    }

    /// Clicks, types and drops on the content as a person would; answers what reached it: clicks, letters, drops.
    QList<int> reached()
    {
        const QList<int> before{ clicks, static_cast<int>(field->text().size()), drops->drops };
        person::clickAt(button, button->rect().center());
        person::clickAt(field, field->rect().center());
        QTest::keyClick(windowHandle(), Qt::Key_A);
        person::drop(drops, { QUrl::fromLocalFile(QStringLiteral("/etc/hostname")) });
        return { clicks - before.at(0), static_cast<int>(field->text().size()) - before.at(1),
            drops->drops - before.at(2) };
    }

    /// Where the veil can be seen beside the sheets.
    void clickVeil() const
    {
        const QPoint corner = stage->mapTo(this, QPoint(4, stage->height() - 4));
        QTest::mouseClick(windowHandle(), Qt::LeftButton, {}, corner);
    }
};

/// A sheet with a heading, `lines` of text, a field and two buttons, of which OK is the default.
class PlainSheet : public Sheet {
public:
    SheetHeading *const heading = new SheetHeading(this);
    QLineEdit *const field = new QLineEdit(this);
    QPushButton *const ok = new QPushButton(QStringLiteral("OK"), this);
    QPushButton *const other = new QPushButton(QStringLiteral("Other"), this);
    int oks = 0;
    int cancels = 0;

    explicit PlainSheet(SheetStage *stage, int lines = 1, Dismiss dismiss = Dismiss::ByPerson)
        : Sheet(stage, dismiss)
    {
        auto *column = new QVBoxLayout(this);
        heading->setText(QStringLiteral("A heading"));
        column->addWidget(heading);
        column->addWidget(
            new QLabel(QStringLiteral("line") + QStringLiteral("\nline").repeated(lines - 1), this));
        for (QWidget *part :
            { static_cast<QWidget *>(field), static_cast<QWidget *>(other), static_cast<QWidget *>(ok) })
            column->addWidget(part);
        ok->setDefault(true);
        connect(ok, &QPushButton::clicked, this, [this] { ++oks; });
    }

protected:
    void cancelled() override { ++cancels; }
};
