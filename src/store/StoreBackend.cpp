#include "store/StoreBackend.h"

#include "store/Connection.h"
#include "store/PgConnection.h"

namespace qv {

bool isServerUri(std::string_view location) {
    return location.starts_with("postgresql://") || location.starts_with("postgres://");
}

std::string Doing::text() const {
    return store_->where(std::string(what_) + " \"" + std::string(source_) + "\"");
}

std::shared_ptr<StoreBackend> StoreBackend::forConnString(const std::string& connString) {
    // Every open names the same store: its location is read out once.
    thread_local std::string lastConnString;
    thread_local std::string lastLocation;
    if (connString.empty() || connString != lastConnString) {
        lastLocation = pathFromConnString(connString);
        lastConnString = connString;
    }
    if (isServerUri(lastLocation)) return PgConnection::forUri(lastLocation);
    if (lastLocation.empty()) return Connection::forConnString(connString);  // its failure
    return Connection::forPath(lastLocation);
}

}  // namespace qv
