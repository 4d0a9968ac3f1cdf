#include "core/single_instance.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace corvana {

IstanzaUnica::IstanzaUnica(const std::string& percorso)
    : descrittore_(open(percorso.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600)) {
    if (descrittore_ < 0) return;
    altra_ = flock(descrittore_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

IstanzaUnica::~IstanzaUnica() {
    if (descrittore_ >= 0) close(descrittore_);
}

}  // namespace corvana
