#pragma once
// A long property sheet as a Qt list model: one row per shown tool, read
// from the tools as the view paints them, so a sheet of thousands of
// keywords costs what is on screen. The view's delegate sends the user's
// actions back through the SheetWidget, as a tool's own cell would.

#include <string>
#include <vector>

#include <QAbstractListModel>

namespace qv {

class Sheet;
class Tool;

class SheetModel : public QAbstractListModel {
    Q_OBJECT
public:
    enum Role { KindRole = Qt::UserRole + 1, TextRole };

    explicit SheetModel(Sheet& sheet, QObject* parent = nullptr);

    [[nodiscard]] Sheet& sheet() const { return sheet_; }
    // Follows the sheet: new rows when tools came, went or changed their
    // visibility, otherwise a repaint of what is shown.
    void follow();
    [[nodiscard]] Tool* toolAt(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex indexOf(const std::string& key) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    [[nodiscard]] std::vector<Tool*> shownTools() const;
    [[nodiscard]] static QString shownText(const Tool& tool, int kind);
    [[nodiscard]] static QString spokenText(const Tool& tool, int kind);

    Sheet& sheet_;
    std::vector<Tool*> rows_;
};

}  // namespace qv
