#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "core/real_files.h"

namespace corvana {

namespace {

namespace fs = std::filesystem;

/// A folder that nothing is mounted on lies on the same device as the folder that holds it.
bool Montata(const std::string& cartella) {
    struct stat dati {};
    struct stat sopra {};
    return stat(cartella.c_str(), &dati) == 0 && stat((cartella + "/..").c_str(), &sopra) == 0 &&
           dati.st_dev != sopra.st_dev;
}

std::vector<std::string> RadiciDelSistema() {
    const passwd* utente = getpwuid(getuid());
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
    std::error_code errore;
    for (fs::directory_iterator voce(percorso, errore), fine; !errore && voce != fine;
         voce.increment(errore)) {
        std::error_code illeggibile;
        // Pipes, sockets and devices are nothing to open.
        if (!voce->is_other(illeggibile))
            voci.push_back({voce->path().filename().string(), voce->is_directory(illeggibile)});
    }
    return errore.value();
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
