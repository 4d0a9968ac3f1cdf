#include "tests/desktop/memory_home.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace corvana::prova {

namespace {

constexpr const char* byteGita = "60;62;\r\n1;1;\r\nn;n;\r\n 90 \r\n 19 \r\n";

/// What the program finds in its own folder, as files in memory.
void PrendiDati(FileInMemoria& file, const QString& dati) {
    for (QDirIterator trovati(dati, {QStringLiteral("*.csv"), QStringLiteral("*.mel")}, QDir::Files,
                              QDirIterator::Subdirectories);
         trovati.hasNext();) {
        QFile uno(trovati.next());
        if (uno.open(QIODevice::ReadOnly))
            file.contenuti[uno.fileName().toStdString()] = uno.readAll().toStdString();
    }
    file.CreaCartella((dati + QStringLiteral("/Melodie/Demo")).toStdString());
}

}  // namespace

void DaiCasa(FileInMemoria& file, Macchina& macchina, const QString& dati) {
    // In memory a path begins at the root.
    const QString cartella = QDir(dati).absolutePath();
    PrendiDati(file, cartella);
    macchina.cartellaProgramma = cartella.toStdString();
    macchina.file = &file;
    macchina.cartellaUtente = "/casa/";
    macchina.cartellaDocumenti = "/casa/Documenti/";
    file.CreaCartella("/casa/Documenti");
    file.supportoRimovibile = "/media/penna/";
    file.CreaCartella("/media/penna");
    file.contenuti["/media/penna/gita.mel"] = byteGita;
}

void RiempiSupporto(FileInMemoria& file) {
    for (const char* nome :
         {"Alla fiera", "Canone a quattro", "Il gallo", "Marcia", "Ninna nanna", "Prima prova"})
        file.contenuti["/media/penna/" + std::string(nome) + ".mel"] = byteGita;
}

}  // namespace corvana::prova
