#include "tests/composer/loading_rig.h"

#include <gtest/gtest.h>

namespace corvana::prova {

void BancoCarica::Carica(const std::string& byte) {
    PonFile("song", byte);
    uscita.messaggi.clear();
    finestra.archivio.Fr2.Visible = true;
    Subito(Fatto::Click, "cmdEseguiFile");
}

void BancoCarica::CaricaCon(const std::map<std::size_t, std::string>& cambi) {
    Linee linee = dueVoci;
    for (const auto& [numero, linea] : cambi)
        linee.at(numero - 1) = linea;
    Carica(linee);
}

BancoGuasti::BancoGuasti() {
    Voce(soprano, "72;", "1");
    finestra.riferimenti.lstBookMark.List = Righe{"1 ÷ 1 ÷Tutta", "1 ÷ 1 ÷ before"};
}

bool BancoGuasti::HaSuonato() const {
    bool suonato = false;
    for (const auto& [istante, messaggio] : uscita.messaggi)
        suonato = suonato || ((messaggio & 0xF0U) == 0x90U && messaggio >> 16 != 0);
    return suonato;
}

void BancoGuasti::EsceGuasto(const std::string& box) const {
    EXPECT_EQ(riquadri.messaggi, std::vector<std::string>{box});
    EXPECT_EQ(melodia.nomeMelodia, "song");
    EXPECT_EQ(finestra.stato.lblNome.Caption(), "song");
    EXPECT_FALSE(HaSuonato());
    EXPECT_EQ(finestra.play.cmdPlay.Caption(), "Play");
    EXPECT_TRUE(melodia.inCaricamento);
}

}  // namespace corvana::prova
