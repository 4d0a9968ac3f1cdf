// The program's process.
#include <QCoreApplication>

#include "desktop/application.h"
#include "desktop/machine.h"

int main(int argc, char** argv) {
    using namespace corvana;
    Applicazione applicazione(argc, argv);
    const Macchina macchina =
        QuestaMacchina(applicazione, QCoreApplication::applicationDirPath().toStdString());
    return applicazione.OspitaLogica([&] { LogicaDelProgramma(applicazione, macchina); });
}
