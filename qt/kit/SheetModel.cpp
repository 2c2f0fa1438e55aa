#include "kit/SheetModel.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include "kit/AccessibleText.h"
#include "kit/Shades.h"
#include "kit/ToolCell.h"
#include "kit/ToolIcons.h"
#include "toolkit/Sheet.h"
#include "toolkit/Tool.h"

namespace qv {

namespace {
QString qs(const std::string& s) { return QString::fromStdString(s); }
}  // namespace

SheetModel::SheetModel(Sheet& sheet, QObject* parent) : QAbstractListModel(parent), sheet_(sheet) {
    rows_ = shownTools();
}

std::vector<Tool*> SheetModel::shownTools() const {
    std::vector<Tool*> rows;
    rows.reserve(sheet_.tools().size());
    for (const auto& t : sheet_.tools())
        if (t->visible()) rows.push_back(t.get());
    return rows;
}

void SheetModel::follow() {
    std::vector<Tool*> rows = shownTools();
    if (rows != rows_) {
        beginResetModel();
        rows_ = std::move(rows);
        endResetModel();
        return;
    }
    if (!rows_.empty()) emit dataChanged(index(0), index(static_cast<int>(rows_.size()) - 1));
}

Tool* SheetModel::toolAt(const QModelIndex& index) const {
    if (!index.isValid() || index.model() != this || index.row() >= static_cast<int>(rows_.size())) return nullptr;
    return rows_[static_cast<std::size_t>(index.row())];
}

QModelIndex SheetModel::indexOf(const std::string& key) const {
    for (std::size_t r = 0; r < rows_.size(); ++r)
        if (rows_[r]->key() == key) return index(static_cast<int>(r));
    return {};
}

int SheetModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

// What a row reads: a text or list tool shows its caption here and its
// text in its field; the rest read as their cells do.
QString SheetModel::shownText(const Tool& t, int kind) {
    const auto k = static_cast<ToolCell::Kind>(kind);
    if (k == ToolCell::Kind::TextBox || k == ToolCell::Kind::List || k == ToolCell::Kind::Hosted) return qs(t.caption());
    return ToolCell::readingOf(t);
}

// What a screen reader says of a row: a field's name with its value, a
// picture's state, a button's reading, as the row's cell would say them.
QString SheetModel::spokenText(const Tool& t, int kind) {
    const auto k = static_cast<ToolCell::Kind>(kind);
    const QString name = AccessibleText::nameOf(t);
    const QString state = AccessibleText::stateOf(t.image());
    if (k == ToolCell::Kind::TextBox || k == ToolCell::Kind::List || k == ToolCell::Kind::Hosted)
        return t.text().empty() ? name : name + ": " + qs(t.text());
    if (k == ToolCell::Kind::Icon) return state.isEmpty() ? name : state + (t.tip().empty() ? "" : ": " + qs(t.tip()));
    const QString reading = AccessibleText::clean(ToolCell::readingOf(t).toStdString());
    const QString said = reading.isEmpty() ? name : reading;
    return state.isEmpty() ? said : said + ", " + state;
}

QVariant SheetModel::data(const QModelIndex& index, int role) const {
    const Tool* t = toolAt(index);
    if (!t) return {};
    const int kind = static_cast<int>(ToolCell::kindOf(*t, false));
    switch (role) {
    case Qt::DisplayRole: return shownText(*t, kind);
    case Qt::EditRole:
    case TextRole: return qs(t->text());
    case KindRole: return kind;
    case Qt::DecorationRole: return ToolIcons::icon(t->image());
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole: return t->tip().empty() ? QVariant() : QVariant(qs(t->tip()));
    case Qt::AccessibleTextRole: return spokenText(*t, kind);
    case Qt::CheckStateRole:
        if (kind == static_cast<int>(ToolCell::Kind::Check) || kind == static_cast<int>(ToolCell::Kind::Option))
            return t->checked() ? Qt::Checked : Qt::Unchecked;
        return {};
    case Qt::FontRole: {
        if (!t->bold() && kind != static_cast<int>(ToolCell::Kind::Heading)) return {};
        QFont f;
        f.setBold(true);
        return f;
    }
    case Qt::ForegroundRole: {
        const QColor own = ToolCell::foreColorOf(*t);
        if (!own.isValid()) return {};
        const QPalette palette = QGuiApplication::palette();
        return Shades::readable(own, palette.color(QPalette::Base), palette.color(QPalette::Text));
    }
    default: return {};
    }
}

Qt::ItemFlags SheetModel::flags(const QModelIndex& index) const {
    const Tool* t = toolAt(index);
    if (!t) return Qt::NoItemFlags;
    Qt::ItemFlags f = Qt::NoItemFlags;
    if (t->enabled() && sheet_.enabled()) f |= Qt::ItemIsEnabled;
    const auto kind = ToolCell::kindOf(*t, false);
    if (kind == ToolCell::Kind::TextBox || kind == ToolCell::Kind::List || kind == ToolCell::Kind::Hosted)
        f |= Qt::ItemIsEditable;
    if (kind != ToolCell::Kind::Separator && kind != ToolCell::Kind::Heading) f |= Qt::ItemIsSelectable;
    // A screen reader tells a check box or option by its checked state.
    if (kind == ToolCell::Kind::Check || kind == ToolCell::Kind::Option) f |= Qt::ItemIsUserCheckable;
    return f;
}

}  // namespace qv
