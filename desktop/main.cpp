// The program's process.
#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include "core/folders.h"
#include "core/real_files.h"
#include "desktop/application.h"
#include "desktop/logic.h"
#include "realtime/punctuality.h"
#include "sound/outputs/real_outputs.h"

namespace {

using namespace corvana;

/// A file of the program's own in one of the user's folders, which is made when it is missing.
std::string NellaCartella(QStandardPaths::StandardLocation dove, const char* nome) {
    const QString cartella = QStandardPaths::writableLocation(dove) + QStringLiteral("/corvana");
    QDir().mkpath(cartella);
    return (cartella + QLatin1Char('/') + QLatin1String(nome)).toStdString();
}

Macchina QuestaMacchina() {
    FileReali file;
    Macchina macchina;
    macchina.cartellaProgramma =
        CercaCartellaProgramma(file, QCoreApplication::applicationDirPath().toStdString());
    macchina.percorsoImpostazioni =
        NellaCartella(QStandardPaths::GenericConfigLocation, "settings");
    macchina.percorsoBlocco = NellaCartella(QStandardPaths::GenericCacheLocation, "lock");
    macchina.uscite = [cartella = macchina.cartellaProgramma](std::function<double()> istante) {
        const ImpostazioniUscite impostazioni{.cartellaSegnali = cartella + "/note",
                                              .puntuale = PreferisciPuntualita};
        return std::make_unique<UsciteReali>(std::move(istante), impostazioni);
    };
    macchina.puntuale = PreferisciPuntualita;
    return macchina;
}

}  // namespace

int main(int argc, char** argv) {
    Applicazione applicazione(argc, argv);
    const Macchina macchina = QuestaMacchina();
    return applicazione.OspitaLogica([&] { LogicaDelProgramma(applicazione, macchina); });
}
