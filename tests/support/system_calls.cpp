#include "tests/support/system_calls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <stdexcept>

namespace corvana::prova {

namespace {

/// More would be a loop without end.
constexpr std::size_t tante = 100'000;

ChiamateSistema* attuali = nullptr;

std::optional<GuastoSistema> Prossimo(const char* nome) {
    return attuali ? attuali->Annota(nome) : std::nullopt;
}

/// True when the call is to fail, by the errno that it leaves.
bool Fallisce(const char* nome) {
    const auto guasto = Prossimo(nome);
    if (!guasto || guasto->errore == 0) return false;
    errno = guasto->errore;
    return true;
}

/// How many of `quanti` bytes are moved; nothing when it's an error.
std::optional<std::size_t> Misura(const char* nome, std::size_t quanti) {
    const auto guasto = Prossimo(nome);
    if (!guasto) return quanti;
    if (guasto->breve) return std::min<std::size_t>(quanti, 1);
    if (guasto->nulla) return 0;
    errno = guasto->errore;
    return std::nullopt;
}

}  // namespace

ChiamateSistema::ChiamateSistema(std::size_t quale, std::optional<GuastoSistema> guasto)
    : quale_(quale), guasto_(guasto) {
    attuali = this;
}

ChiamateSistema::~ChiamateSistema() {
    attuali = nullptr;
}

std::optional<GuastoSistema> ChiamateSistema::Annota(const char* nome) {
    const std::size_t questa = fatte_.size();
    if (questa > tante) throw std::runtime_error("there is no end of it");
    fatte_.emplace_back(nome);
    const bool colpita = guasto_ && (guasto_->daAlloraInPoi ? questa >= quale_ : questa == quale_);
    return colpita ? guasto_ : std::nullopt;
}

}  // namespace corvana::prova

using corvana::prova::Fallisce;
using corvana::prova::Misura;

// The linker's names of what is wrapped.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl50-cpp)
extern "C" {
int __real_open(const char* percorso, int modo, ...);
int __real_close(int descrittore);
ssize_t __real_read(int descrittore, void* dove, std::size_t quanti);
ssize_t __real_write(int descrittore, const void* byte, std::size_t quanti);
int __real_fsync(int descrittore);
int __real_rename(const char* vecchio, const char* nuovo);
int __real_renameat2(int da, const char* vecchio, int a, const char* nuovo, unsigned come);
int __real_unlink(const char* percorso);

int __wrap_open(const char* percorso, int modo, ...) {
    va_list altri;
    va_start(altri, modo);
    const mode_t permessi = (modo & O_CREAT) != 0 ? va_arg(altri, mode_t) : 0;
    va_end(altri);
    return Fallisce("open") ? -1 : __real_open(percorso, modo, permessi);
}

/// What fails is closed all the same, as on a real system.
int __wrap_close(int descrittore) {
    const int esito = __real_close(descrittore);
    return Fallisce("close") ? -1 : esito;
}

ssize_t __wrap_read(int descrittore, void* dove, std::size_t quanti) {
    const auto quanto = Misura("read", quanti);
    return quanto ? __real_read(descrittore, dove, *quanto) : -1;
}

ssize_t __wrap_write(int descrittore, const void* byte, std::size_t quanti) {
    const auto quanto = Misura("write", quanti);
    return quanto ? __real_write(descrittore, byte, *quanto) : -1;
}

/// The disk's own time is no part of the test.
int __wrap_fsync(int descrittore) {
    if (!corvana::prova::attuali) return __real_fsync(descrittore);
    return Fallisce("fsync") ? -1 : 0;
}

int __wrap_rename(const char* vecchio, const char* nuovo) {
    return Fallisce("rename") ? -1 : __real_rename(vecchio, nuovo);
}

int __wrap_renameat2(int da, const char* vecchio, int a, const char* nuovo, unsigned come) {
    return Fallisce("renameat2") ? -1 : __real_renameat2(da, vecchio, a, nuovo, come);
}

int __wrap_unlink(const char* percorso) {
    return Fallisce("unlink") ? -1 : __real_unlink(percorso);
}
}
// NOLINTEND(bugprone-reserved-identifier,cert-dcl50-cpp)
