#include "PageSetupView.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

#include "PagePicture.h"
#include "kit/AccessibleText.h"
#include "kit/PaneBuilder.h"
#include "kit/QtText.h"
#include "toolkit/Form.h"
#include "toolkit/Label.h"
#include "toolkit/Sheet.h"

namespace qv {

PageSetupView::PageSetupView(Form& form, QWidget* parent) : FormView(form, parent) {
    setObjectName("frmPageSetup.view");
    PaneBuilder make(form, this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    auto* columns = new QHBoxLayout;
    auto* left = new QVBoxLayout;
    left->addWidget(make.label("lblStatic"));
    left->addWidget(make.sheet("smtPrinting(0)"), 1);
    auto* picture = new QHBoxLayout;
    if (Label* image = form.label("Image1")) picture->addWidget(new PagePicture(*image, this));
    picture->addWidget(make.label("lblPrint"), 1);
    left->addLayout(picture);
    auto* right = new QVBoxLayout;
    right->addWidget(make.sheet("smtPrinting(1)"), 3);
    right->addWidget(colourButton("smtPrinting(1)", "HCOLOR", qtr("Heading &Colour...")));
    right->addWidget(make.sheet("smtPrinting(2)"), 3);
    right->addWidget(colourButton("smtPrinting(2)", "FCOLOR", qtr("Foo&ter Colour...")));
    right->addWidget(make.sheet("smtPrinting(3)"), 2);
    right->addWidget(make.sheet("smtPrinting(4)"), 3);
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
    column->addLayout(columns, 1);
    column->addWidget(make.sheet("smtActions", SheetWidget::Style::Toolbar));
}

// The colour tools are texts; a click on them is what picks a colour.
QWidget* PageSetupView::colourButton(const char* sheetName, const char* key, const QString& text) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(QString(key) + ".choose");
    Sheet* sheet = form().sheet(sheetName);
    if (!sheet || !sheet->hasKey(key)) {
        button->hide();
        return button;
    }
    connect(button, &QPushButton::clicked, this, [sheet, key] { sheet->click(sheet->tool(key)); });
    const QString name = AccessibleText::clean(text.toStdString());
    auto follow = [button, sheet, key, name] {
        const Tool* tool = sheet->find(key);
        const std::string number = tool ? tool->text() : std::string();
        button->setIcon(swatch(number));
        AccessibleText::set(button, name, qtr("Colour %1").arg(QString::fromStdString(number)));
    };
    swatches_.emplace_back(sheet->Changed, follow);
    follow();
    return button;
}

QIcon PageSetupView::swatch(const std::string& number) {
    bool ok = false;
    const long rgb = QString::fromStdString(number).trimmed().toLong(&ok);
    if (!ok || rgb < 0 || rgb > 0xFFFFFF) return {};
    QPixmap pm(16, 16);
    pm.fill(QColor(static_cast<int>(rgb & 0xFF), static_cast<int>((rgb >> 8) & 0xFF), static_cast<int>((rgb >> 16) & 0xFF)));
    QPainter p(&pm);
    p.setPen(Qt::gray);  // an edge that shows on a light or a dark button
    p.drawRect(pm.rect().adjusted(0, 0, -1, -1));
    return QIcon(pm);
}

}  // namespace qv
