// The melody window over a folder of the machine's own disk.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "core/real_files.h"
#include "tests/composer/composer_rig.h"
#include "tests/core/temporary_folder.h"

namespace corvana::prova {

inline std::string Contenuto(const std::string& percorso) {
    std::ifstream file(percorso, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void Scrivi(const std::string& percorso, const std::string& byte) {
    std::ofstream(percorso, std::ios::binary) << byte;
}

/// The window with a folder of the disk as its current one.
struct BancoSuDisco {
    CartellaProvvisoria cartella;
    FileReali veri{{}};
    BancoComposer b;

    explicit BancoSuDisco(char separatore = '.') : b(veri, separatore) {
        b.globali.percorsoCorrente = cartella.Di("");
    }
    /// Four voices with every kind of note, bookmarks, the metronome on.
    void Componi(const std::string& terzina, const std::string& punto) {
        b.Voce(0, "60;62;00;69;71;72;", "1;" + punto + ";0;" + terzina + terzina + terzina,
               "n;s;p;a;t;n;");
        b.Voce(1, "48;", punto + ";", "n;");
        b.Voce(3, "36;95;", "4;" + punto + ";", "n;a;");
        for (std::size_t voce = 0; voce < numeroVoci; ++voce)
            b.melodia.voci[voce].strumento = static_cast<std::int32_t>(voce) * 40;
        b.finestra.riferimenti.lstBookMark.List = Righe{"1 ÷ 6 ÷Tutta", "2 ÷ 3 ÷ così"};
        b.finestra.play.Slider1.PonValore(250);
        b.finestra.pulsi.lblTs_Click();
        b.finestra.pulsi.Pulsazioni.PonTesto("3");
        b.finestra.pulsi.InizioPuls.PonValore(2);
    }
    /// Chooses the row of the list, which is read anew, and opens it.
    void Carica(const std::string& nome) {
        b.finestra.archivio.ListaFD();
        b.Scegli(nome);
        b.finestra.archivio.cmdEseguiFile_Click();
    }
    /// The flag and the file stayed, and no temporary is left.
    void EsceRifiutata(const std::string& contenuto) const {
        EXPECT_TRUE(b.finestra.stato.lblModificato.Visible());
        EXPECT_EQ(Contenuto(cartella.Di("song.mel")), contenuto);
        EXPECT_EQ(cartella.Quanti(), 1);
    }
};

}  // namespace corvana::prova
