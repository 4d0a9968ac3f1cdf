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
/// Copies of one file that may lie beside it.
constexpr int tanteCopie = 1000;

/// An open descriptor, closed with its owner. A pipe that nobody holds the other end of would keep
/// the opening waiting for ever.
class Descrittore {
public:
    Descrittore() = default;
    Descrittore(const std::string& percorso, int modo) { Apri(percorso, modo); }
    Descrittore(const Descrittore&) = delete;
    Descrittore& operator=(const Descrittore&) = delete;
    ~Descrittore() { Chiudi(); }

    /// False, with errno, when it can't be opened; for one that isn't open.
    bool Apri(const std::string& percorso, int modo) {
        numero_ = open(percorso.c_str(), modo | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, permessi);
        return Aperto();
    }
    bool Aperto() const { return numero_ >= 0; }
    int Numero() const { return numero_; }
    int Chiudi() {
        const int esito = numero_ < 0 ? 0 : close(numero_);
        numero_ = -1;
        return esito;
    }

private:
    int numero_ = -1;
};

bool ScriviTutto(int descrittore, std::string_view resto) {
    while (!resto.empty()) {
        const ssize_t scritti = write(descrittore, resto.data(), resto.size());
        if (scritti < 0 && errno == EINTR) continue;
        // What takes nothing now takes nothing later either.
        if (scritti == 0) errno = EIO;
        if (scritti <= 0) return false;
        resto.remove_prefix(static_cast<std::size_t>(scritti));
    }
    return true;
}

/// What came before an error is in `contenuto`.
int LeggiTutto(int descrittore, std::string& contenuto, std::size_t limite) {
    std::array<char, 65536> pezzo{};
    for (;;) {
        const ssize_t letti = read(descrittore, pezzo.data(), pezzo.size());
        if (letti == 0) return 0;
        if (letti < 0 && errno == EINTR) continue;
        if (letti < 0) return errno;
        if (static_cast<std::size_t>(letti) > limite - contenuto.size()) return EFBIG;
        contenuto.append(pezzo.data(), static_cast<std::size_t>(letti));
    }
}

/// What is to take a file's place, beside it and under a name that is nobody's: of two who write
/// the same file each has a copy of his own, and what others left there is theirs.
class Copia {
public:
    explicit Copia(const std::string& percorso) {
        int numero = 1;
        do
            nome_ = percorso + ".nuovo" + (numero > 1 ? std::to_string(numero) : "");
        while (!file_.Apri(nome_, O_WRONLY | O_CREAT | O_EXCL) && errno == EEXIST &&
               numero++ < tanteCopie);
    }

    bool Aperta() const { return file_.Aperto(); }
    const std::string& Nome() const { return nome_; }
    /// False, with errno, when not all of it is on the disk; closed then.
    bool Riempi(std::string_view contenuto) {
        return ScriviTutto(file_.Numero(), contenuto) && fsync(file_.Numero()) == 0 &&
               file_.Chiudi() == 0;
    }
    /// Takes over who may do what with the file, as far as there is one and its owner allows it.
    void PrendiDiritti(const std::string& percorso) {
        struct stat dati {};
        if (stat(percorso.c_str(), &dati) == 0) fchmod(file_.Numero(), dati.st_mode & ACCESSPERMS);
    }

private:
    std::string nome_;
    Descrittore file_;
};

/// The file that a link leads to, so that the link stays; else the path itself.
std::string DoveConduce(const std::string& percorso) {
    std::error_code errore;
    if (!std::filesystem::is_symlink(percorso, errore)) return percorso;
    const auto meta = std::filesystem::canonical(percorso, errore);
    return std::filesystem::is_regular_file(meta, errore) ? meta.string() : percorso;
}

/// Why there are no bytes to be had of it; 0 for a file.
int NonLeggibile(int descrittore) {
    struct stat dati {};
    if (fstat(descrittore, &dati) != 0) return errno;
    if (S_ISDIR(dati.st_mode)) return EISDIR;
    return S_ISREG(dati.st_mode) ? 0 : EINVAL;
}

/// What a name stands for, or that it is gone, is on the disk only when the folder is.
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

int FileReali::Leggi(const std::string& percorso, std::string& contenuto, std::size_t limite) {
    contenuto.clear();
    const Descrittore file(percorso, O_RDONLY);
    if (!file.Aperto()) return errno;
    if (const int errore = NonLeggibile(file.Numero())) return errore;
    const int errore = LeggiTutto(file.Numero(), contenuto, limite);
    if (errore != 0) contenuto.clear();
    return errore;
}

int FileReali::Rinomina(const std::string& percorso, const std::string& nuovo) {
    return rename(percorso.c_str(), nuovo.c_str()) == 0 ? 0 : errno;
}

int FileReali::RinominaSeLibero(const std::string& percorso, const std::string& nuovo) {
    if (renameat2(AT_FDCWD, percorso.c_str(), AT_FDCWD, nuovo.c_str(), RENAME_NOREPLACE) == 0)
        return 0;
    // Not every medium can make sure of it.
    if (errno != EINVAL && errno != ENOSYS) return errno;
    struct stat dati {};
    return lstat(nuovo.c_str(), &dati) == 0 ? EEXIST : Rinomina(percorso, nuovo);
}

int FileReali::ScriviAtomico(const std::string& percorso, const std::string& contenuto) {
    return Scrivi(DoveConduce(percorso), contenuto, &FileReali::Rinomina);
}

int FileReali::ScriviSeLibero(const std::string& percorso, const std::string& contenuto) {
    return Scrivi(percorso, contenuto, &FileReali::RinominaSeLibero);
}

int FileReali::Scrivi(const std::string& percorso, const std::string& contenuto,
                      Nominare nominare) {
    Copia copia(percorso);
    if (!copia.Aperta()) return errno;
    copia.PrendiDiritti(percorso);
    const int errore = copia.Riempi(contenuto) ? (this->*nominare)(copia.Nome(), percorso) : errno;
    if (errore == 0)
        FissaCartella(percorso);
    else
        unlink(copia.Nome().c_str());
    return errore;
}

int FileReali::Elimina(const std::string& percorso) {
    if (unlink(percorso.c_str()) != 0) return errno;
    FissaCartella(percorso);
    return 0;
}

int FileReali::CreaCartella(const std::string& percorso) {
    std::error_code errore;
    std::filesystem::create_directories(percorso, errore);
    return errore.value();
}

}  // namespace corvana
