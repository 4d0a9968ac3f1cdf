#include "core/real_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace corvana {

namespace {

constexpr mode_t permessi = 0644;

/// An open descriptor, closed with its owner.
class Descrittore {
public:
    Descrittore(const std::string& percorso, int modo)
        : numero_(open(percorso.c_str(), modo | O_CLOEXEC, permessi)) {}
    Descrittore(const Descrittore&) = delete;
    Descrittore& operator=(const Descrittore&) = delete;
    ~Descrittore() { Chiudi(); }

    bool Aperto() const { return numero_ >= 0; }
    int Numero() const { return numero_; }
    int Chiudi() {
        const int esito = numero_ < 0 ? 0 : close(numero_);
        numero_ = -1;
        return esito;
    }

private:
    int numero_;
};

bool ScriviTutto(int descrittore, std::string_view resto) {
    while (!resto.empty()) {
        const ssize_t scritti = write(descrittore, resto.data(), resto.size());
        if (scritti < 0 && errno == EINTR) continue;
        if (scritti < 0) return false;
        resto.remove_prefix(static_cast<std::size_t>(scritti));
    }
    return true;
}

bool Deposita(const std::string& percorso, const std::string& contenuto) {
    Descrittore file(percorso, O_WRONLY | O_CREAT | O_TRUNC);
    return file.Aperto() && ScriviTutto(file.Numero(), contenuto) && fsync(file.Numero()) == 0 &&
           file.Chiudi() == 0;
}

/// The new name is on the disk only when the folder is.
void FissaCartella(const std::string& percorso) {
    const std::string cartella = std::filesystem::path(percorso).parent_path().string();
    const Descrittore aperta(cartella.empty() ? "." : cartella, O_RDONLY | O_DIRECTORY);
    if (aperta.Aperto()) fsync(aperta.Numero());
}

}  // namespace

bool FileReali::Esiste(const std::string& percorso) {
    struct stat dati {};
    return stat(percorso.c_str(), &dati) == 0 && S_ISREG(dati.st_mode);
}

int FileReali::Leggi(const std::string& percorso, std::string& contenuto) {
    contenuto.clear();
    const Descrittore file(percorso, O_RDONLY);
    if (!file.Aperto()) return errno;
    std::array<char, 65536> pezzo{};
    for (;;) {
        const ssize_t letti = read(file.Numero(), pezzo.data(), pezzo.size());
        if (letti == 0) return 0;
        if (letti < 0 && errno == EINTR) continue;
        if (letti < 0) return errno;
        contenuto.append(pezzo.data(), static_cast<std::size_t>(letti));
    }
}

int FileReali::ScriviAtomico(const std::string& percorso, const std::string& contenuto) {
    const std::string provvisorio = percorso + ".nuovo";
    if (Deposita(provvisorio, contenuto) && rename(provvisorio.c_str(), percorso.c_str()) == 0) {
        FissaCartella(percorso);
        return 0;
    }
    const int errore = errno;
    unlink(provvisorio.c_str());
    return errore;
}

int FileReali::CreaCartella(const std::string& percorso) {
    std::error_code errore;
    std::filesystem::create_directories(percorso, errore);
    return errore.value();
}

}  // namespace corvana
