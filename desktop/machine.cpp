#include "desktop/machine.h"

#include <dlfcn.h>

#include <QDir>
#include <QStandardPaths>
#include <chrono>
#include <stdexcept>

#include "core/folders.h"
#include "core/real_files.h"
#include "desktop/application.h"
#include "desktop/late_outputs.h"
#include "realtime/punctuality.h"
#include "sound/outputs/module.h"

namespace corvana {

namespace {

/// A file of the program's own in one of the user's folders, which is made when it is missing.
std::string NellaCartella(QStandardPaths::StandardLocation dove, const char* nome) {
    const QString cartella = QStandardPaths::writableLocation(dove) + QStringLiteral("/corvana");
    QDir().mkpath(cartella);
    return (cartella + QLatin1Char('/') + QLatin1String(nome)).toStdString();
}

/// One of the user's own folders, with a closing separator; empty where there is none.
std::string CartellaSua(QStandardPaths::StandardLocation quale) {
    const std::string cartella = QStandardPaths::writableLocation(quale).toStdString();
    return cartella.empty() || cartella.ends_with('/') ? cartella : cartella + "/";
}

/// The file of what isn't saved. Its folder is made when something is kept.
std::string PercorsoRecupero() {
    const std::string cartella =
        CartellaStato(qgetenv("XDG_STATE_HOME").toStdString(), QDir::homePath().toStdString());
    return cartella.empty() ? "" : cartella + "/corvana/unsaved-melody";
}

/// Of a window that isn't painted by then, the sound doesn't wait any longer.
constexpr std::chrono::milliseconds attesaDipinta(500);

std::unique_ptr<PiattaformaMidi> CaricaUscite(const std::string& modulo,
                                              const std::function<double()>& istante,
                                              const ImpostazioniUscite& impostazioni) {
    // Never let go: the audio libraries leave threads behind.
    void* const preso = dlopen(modulo.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    void* const entrata = preso ? dlsym(preso, entrataUscite) : nullptr;
    if (!entrata) throw std::runtime_error(dlerror());
    return std::unique_ptr<PiattaformaMidi>(
        reinterpret_cast<CreazioneUscite*>(entrata)(istante, impostazioni));
}

}  // namespace

Macchina QuestaMacchina(const Applicazione& applicazione, const std::string& qui,
                        ImpostazioniUscite uscite) {
    FileReali file;
    Macchina macchina;
    macchina.cartellaProgramma = CercaCartellaProgramma(file, qui);
    macchina.percorsoImpostazioni =
        NellaCartella(QStandardPaths::GenericConfigLocation, "settings");
    macchina.percorsoBlocco = NellaCartella(QStandardPaths::GenericCacheLocation, "lock");
    macchina.percorsoRecupero = PercorsoRecupero();
    macchina.cartellaUtente = CartellaSua(QStandardPaths::HomeLocation);
    macchina.cartellaDocumenti = CartellaSua(QStandardPaths::DocumentsLocation);
    uscite.cartellaSegnali = macchina.cartellaProgramma + "/note";
    uscite.puntuale = PreferisciPuntualita;
    macchina.uscite = [=, &applicazione](const std::function<double()>& istante) {
        return std::make_unique<UsciteDifferite>([=, &applicazione] {
            applicazione.AspettaDipinta(attesaDipinta);
            return CaricaUscite(qui + CORVANA_OUTPUTS, istante, uscite);
        });
    };
    macchina.puntuale = PreferisciPuntualita;
    return macchina;
}

}  // namespace corvana
