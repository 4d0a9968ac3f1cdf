#include "desktop/wake.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <system_error>

namespace corvana {

Sveglia::Sveglia() : presa_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (presa_ < 0) throw std::system_error(errno, std::generic_category(), "eventfd");
}

Sveglia::~Sveglia() {
    close(presa_);
}

void Sveglia::Suona() const noexcept {
    SuonaPresa(presa_);
}

void Sveglia::Svuota() const noexcept {
    std::uint64_t volte = 0;
    // Nothing to read is as good as read.
    static_cast<void>(!read(presa_, &volte, sizeof volte));
}

void SuonaPresa(int presa) noexcept {
    const int errore = errno;
    const std::uint64_t una = 1;
    // Only a full counter refuses, and then the bell rings already.
    static_cast<void>(!write(presa, &una, sizeof una));
    errno = errore;
}

}  // namespace corvana
