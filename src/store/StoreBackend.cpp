#include "store/StoreBackend.h"

#include "store/Connection.h"
#include "store/PgConnection.h"

namespace qv {

bool isServerUri(std::string_view location) {
    return location.starts_with("postgresql://") || location.starts_with("postgres://");
}

std::shared_ptr<StoreBackend> StoreBackend::forConnString(const std::string& connString) {
    const std::string location = pathFromConnString(connString);
    if (isServerUri(location)) return PgConnection::forUri(location);
    return Connection::forConnString(connString);
}

}  // namespace qv
