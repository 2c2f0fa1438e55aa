#pragma once
// The sheets' image list, drawn by us: "GOOD", "BAD", "GRAY", "INUSE".

#include <string>

#include <QIcon>
#include <QPixmap>

namespace qv {

class ToolIcons {
public:
    // A null pixmap for a name the list does not hold.
    [[nodiscard]] static QPixmap pixmap(const std::string& name, int size = 16);
    [[nodiscard]] static QIcon icon(const std::string& name, int size = 16);

private:
    [[nodiscard]] static QPixmap draw(const std::string& name, int size);
};

}  // namespace qv
