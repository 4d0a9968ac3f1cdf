#include "tests/desktop/program_stage.h"

#include <QAbstractButton>
#include <QLineEdit>

#include "sound/recorder.h"

namespace corvana::prova {

Macchina MacchinaMuta(const QString& dati, const QTemporaryDir& stato) {
    Macchina macchina;
    macchina.cartellaProgramma = dati.toStdString();
    macchina.percorsoImpostazioni = stato.filePath(QStringLiteral("settings")).toStdString();
    macchina.percorsoBlocco = stato.filePath(QStringLiteral("lock")).toStdString();
    macchina.uscite = [](std::function<double()> istante) {
        return std::make_unique<Registratore>(std::move(istante));
    };
    return macchina;
}

PalcoProgramma::PalcoProgramma(const QString& dati, const std::function<void(Macchina&)>& prepara) {
    Macchina macchina = MacchinaMuta(dati.isEmpty() ? stato_.path() : dati, stato_);
    if (prepara) prepara(macchina);
    scrivania.Avvia([this, macchina] { LogicaDelProgramma(applicazione_, macchina); });
    AspettaFinestra(scrivania, QStringLiteral("CorvanaMainF"));
    Aspetta([this] { return Trova(scrivania, QStringLiteral("Start")).isEnabled(); });
}

PalcoProgramma::~PalcoProgramma() {
    scrivania.Termina();
}

QString PalcoProgramma::Testo(const char* casella) {
    return Trova(scrivania, QLatin1String(casella)).Come<QLineEdit>().text();
}

QString PalcoProgramma::Scritta(const char* bottone) {
    return Trova(scrivania, QLatin1String(bottone)).Come<QAbstractButton>().text();
}

int PalcoProgramma::Risposte() {
    return Testo("conta").toInt() + Testo("er").toInt();
}

}  // namespace corvana::prova
