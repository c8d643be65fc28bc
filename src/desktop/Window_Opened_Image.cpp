#include "desktop/Window_Opened_Image.h"

#include "compilation/Measuring.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace desktop {

Window_Opened_Image::Window_Opened_Image(SheetStage *stage, const QString &image)
    : Sheet(stage, Dismiss::ByPerson)
{
    setObjectName(u"Window_Opened_Image"_s);
    auto *rows = new QVBoxLayout(this);
    rows->setSpacing(16);
    rows->setContentsMargins(24, 24, 24, 16);
    auto *heading = new SheetHeading(this);
    heading->setObjectName(u"labelHeading"_s);
    heading->setText(tr("Write this image to the disc in the drive?"));
    heading->setMinimumWidth(heading->fontMetrics().averageCharWidth() * 52);
    rows->addWidget(heading);
    const QFileInfo file(image);
    QLabel *name = addText(u"labelImage"_s, file.fileName().simplified());
    QFont bold = name->font();
    bold.setBold(true);
    name->setFont(bold);
    addText(u"labelPlace"_s,
        tr("%1 in the folder %2")
            .arg(compilation::sizeText(static_cast<quint64>(file.size())), file.path().simplified()));
    auto *box = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    QPushButton *write = box->addButton(tr("&Write Image"), QDialogButtonBox::AcceptRole);
    write->setObjectName(u"buttonWrite"_s);
    write->setAccessibleName(tr("Write Image"));
    write->setToolTip(tr("Look at the disc in the drive, and write the image to it"));
    box->button(QDialogButtonBox::Cancel)->setDefault(true);
    rows->addWidget(box);
    connect(box, &QDialogButtonBox::rejected, this, &Window_Opened_Image::endSheet);
    connect(box, &QDialogButtonBox::accepted, this, &Window_Opened_Image::confirmed);
}

QLabel *Window_Opened_Image::addText(const QString &name, const QString &text)
{
    auto *label = new QLabel(wrappable(text), this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    layout()->addWidget(label);
    return label;
}

} // namespace desktop
