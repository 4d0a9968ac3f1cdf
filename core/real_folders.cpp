#include <dirent.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

#include "core/real_files.h"

namespace corvana {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t voceUtente = 16384;  ///< bytes that the system's entry of a user may take

/// A folder that nothing is mounted on lies on the same device as the folder that holds it.
bool Montata(const std::string& cartella) {
    struct stat dati {};
    struct stat sopra {};
    return stat(cartella.c_str(), &dati) == 0 && stat((cartella + "/..").c_str(), &sopra) == 0 &&
           dati.st_dev != sopra.st_dev;
}

struct ChiudiCartella {
    void operator()(DIR* cartella) const { closedir(cartella); }
};

/// Of what a link leads to; what leads nowhere is a file, which can't be opened.
mode_t GenereDi(int cartella, const dirent& voce) {
    if (voce.d_type != DT_LNK && voce.d_type != DT_UNKNOWN) return DTTOIF(mode_t{voce.d_type});
    struct stat dati {};
    return fstatat(cartella, voce.d_name, &dati, 0) == 0 ? dati.st_mode : S_IFREG;
}

std::vector<std::string> RadiciDelSistema() {
    std::array<char, voceUtente> testi{};
    passwd dati{};
    passwd* utente = nullptr;
    getpwuid_r(getuid(), &dati, testi.data(), testi.size(), &utente);
    if (!utente) return {};
    return {std::string("/run/media/") + utente->pw_name, std::string("/media/") + utente->pw_name};
}

}  // namespace

FileReali::FileReali() : FileReali(RadiciDelSistema()) {}

bool FileReali::EsisteCartella(const std::string& percorso) {
    std::error_code errore;
    return fs::is_directory(percorso, errore);
}

int FileReali::EliminaCartella(const std::string& percorso) {
    return rmdir(percorso.c_str()) == 0 ? 0 : errno;
}

int FileReali::Elenca(const std::string& percorso, std::vector<VoceCartella>& voci) {
    voci.clear();
    const std::unique_ptr<DIR, ChiudiCartella> cartella(opendir(percorso.c_str()));
    if (!cartella) return errno;
    for (;;) {
        errno = 0;
        const dirent* voce = readdir(cartella.get());
        if (!voce) return errno;
        const std::string_view nome(voce->d_name);
        if (nome == "." || nome == "..") continue;
        const mode_t genere = GenereDi(dirfd(cartella.get()), *voce);
        // Pipes, sockets and devices are nothing to open.
        if (S_ISDIR(genere) || S_ISREG(genere)) voci.push_back({voce->d_name, S_ISDIR(genere)});
    }
}

std::vector<std::string> FileReali::Supporti() {
    std::vector<std::string> supporti;
    for (const std::string& radice : radiciSupporti_) {
        std::vector<VoceCartella> voci = Elenca(radice);
        std::sort(voci.begin(), voci.end(),
                  [](const auto& a, const auto& b) { return a.nome < b.nome; });
        for (const VoceCartella& voce : voci) {
            const std::string cartella = radice + "/" + voce.nome;
            if (voce.cartella && Montata(cartella)) supporti.push_back(cartella + "/");
        }
    }
    return supporti;
}

}  // namespace corvana
