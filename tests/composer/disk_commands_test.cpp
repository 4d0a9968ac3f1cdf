// The commands of the list on the machine's own disk, and what may lie on one.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/composer/disk_rig.h"
#include "tests/composer/mel_lines.h"

namespace corvana::prova {

namespace {

namespace fs = std::filesystem;
using Avvisi = std::vector<std::string>;

/// While it lives the disk lets this process do what it lets anybody do, and no more.
class Chiunque {
public:
    Chiunque() { EXPECT_EQ(seteuid(era_ == 0 ? nessuno : era_), 0); }
    Chiunque(const Chiunque&) = delete;
    Chiunque& operator=(const Chiunque&) = delete;
    ~Chiunque() { EXPECT_EQ(seteuid(era_), 0); }

private:
    static constexpr uid_t nessuno = 65534;
    uid_t era_ = geteuid();
};

struct BancoComandi : BancoSuDisco {
    PannelloFile& p = b.finestra.archivio;

    std::string Di(const std::string& nome) const { return cartella.Di(nome); }
    void Cartella(const std::string& nome) const { fs::create_directory(Di(nome)); }
    void File(const std::string& nome, const std::string& byte = FileDi(soloSoprano)) const {
        Scrivi(Di(nome), byte);
    }
    /// Reads the list anew and chooses the row, if any.
    void Scegli(const std::string& riga) {
        p.ListaFD();
        b.Scegli(riga);
    }
    /// What the boxes said since the last call.
    Avvisi Detto() { return std::exchange(b.riquadri.messaggi, {}); }
    Avvisi Crea(const std::string& nome) {
        b.riquadri.testi = {nome};
        p.cmdMkdir_Click();
        return Detto();
    }
    Avvisi Rinomina(const std::string& riga, const std::string& nuovo) {
        Scegli(riga);
        b.riquadri.testi = {nuovo};
        p.cmdRename_Click();
        return Detto();
    }
    Avvisi Elimina(const std::string& riga) {
        Scegli(riga);
        b.riquadri.risposte = {true};
        p.cmdDelete_Click();
        return Detto();
    }
    /// Opens the row and lets what plays end.
    Avvisi Apri(const std::string& riga) {
        Scegli(riga);
        p.cmdEseguiFile_Click();
        return Detto();
    }
    const Righe& Elenco() const { return p.List1.List(); }
};

std::string Errore(int errore) {
    return std::to_string(errore) + "\r\n" + ParoleSistema(errore);
}

}  // namespace

TEST(ComandiSuDisco, AFolderIsMadeEnteredLeftAndDeleted) {
    BancoComandi d;
    EXPECT_EQ(d.Crea("Perché §"), Avvisi{""});
    EXPECT_TRUE(fs::is_directory(d.Di("Perché §")));
    EXPECT_EQ(d.Elenco(), (Righe{"» ..", "» Perché §"}));
    EXPECT_EQ(d.Apri("» Perché §"), Avvisi{});
    EXPECT_EQ(d.b.globali.percorsoCorrente, d.Di("Perché §") + "/");
    EXPECT_EQ(d.Apri("» .."), Avvisi{});
    EXPECT_EQ(d.Elimina("» Perché §"), Avvisi{"Perché § ?"});
    EXPECT_FALSE(fs::exists(d.Di("Perché §")));
    EXPECT_EQ(d.Elenco(), Righe{"» .."});
}

TEST(ComandiSuDisco, AMelodyIsRenamedAlsoByTheCaseOfItsLettersAloneAndDeleted) {
    BancoComandi d;
    d.File("song.mel", "old");
    d.File("TAKEN.MEL", "other");
    EXPECT_EQ(d.Rinomina("song", "TAKEN"), (Avvisi{"", "TAKEN"}));
    EXPECT_EQ(d.Rinomina("song", "Song"), Avvisi{""});
    EXPECT_EQ(d.Elenco(), (Righe{"» ..", "Song", "TAKEN"}));
    EXPECT_EQ(d.Rinomina("Song", "why?"), Avvisi{""});
    EXPECT_EQ(Contenuto(d.Di("why?.mel")), "old");
    EXPECT_EQ(Contenuto(d.Di("TAKEN.MEL")), "other");
    EXPECT_EQ(d.Elimina("why?"), Avvisi{"why? ?"});
    EXPECT_EQ(d.Elimina("TAKEN"), Avvisi{"TAKEN ?"});
    EXPECT_EQ(d.cartella.Quanti(), 0);
}

TEST(ComandiSuDisco, ANameOfThreeHundredCharactersIsRefusedByTheSystemAndTheListStays) {
    BancoComandi d;
    d.File("song.mel", "old");
    d.Scegli("song");
    const std::string lungo(300, 'x');
    EXPECT_EQ(d.Crea(lungo), (Avvisi{"", Errore(ENAMETOOLONG)}));
    EXPECT_EQ(d.p.List1.Scelta(), "song");
    EXPECT_EQ(d.Rinomina("song", lungo), (Avvisi{"", Errore(ENAMETOOLONG)}));
    EXPECT_EQ(d.p.List1.Scelta(), "song");
    EXPECT_EQ(Contenuto(d.Di("song.mel")), "old");
    d.b.Voce(soprano, "60;", "1");
    d.b.riquadri.testi = {lungo};
    d.p.mnuSaveAs_Click();
    EXPECT_EQ(d.Detto(), (Avvisi{"nome?", Errore(ENAMETOOLONG)}));
    EXPECT_EQ(d.cartella.Quanti(), 1);
}

TEST(ComandiSuDisco, ALinkIsEnteredAndLoadedAndWhatIsRenamedOrDeletedIsTheLink) {
    BancoComandi d;
    d.Cartella("empty");
    d.File("song.mel");
    fs::create_directory_symlink("empty", d.Di("way"));
    fs::create_symlink("song.mel", d.Di("same.mel"));
    EXPECT_EQ(d.Apri("same"), Avvisi{});
    EXPECT_EQ(d.b.melodia.voci[soprano].testoNote, "60;62;");
    EXPECT_EQ(d.Rinomina("same", "other"), Avvisi{""});
    EXPECT_TRUE(fs::is_symlink(d.Di("other.mel")));
    EXPECT_EQ(d.Elimina("other"), Avvisi{"other ?"});
    EXPECT_EQ(Contenuto(d.Di("song.mel")), FileDi(soloSoprano));
    EXPECT_EQ(d.Elimina("» way"), (Avvisi{"way ?", Errore(ENOTDIR)}));
    EXPECT_TRUE(fs::is_directory(d.Di("empty")));
    EXPECT_EQ(d.Apri("» way"), Avvisi{});
    EXPECT_EQ(d.Elenco(), Righe{"» .."});
}

TEST(ComandiSuDisco, ALinkThatLeadsNowhereOrToItselfIsToldInTheSystemsWords) {
    BancoComandi d;
    fs::create_symlink("nowhere", d.Di("gone.mel"));
    fs::create_symlink("loop.mel", d.Di("loop.mel"));
    d.File("song.mel", "old");
    EXPECT_EQ(d.Apri("gone"), Avvisi{Errore(ENOENT)});
    EXPECT_EQ(d.Apri("loop"), Avvisi{Errore(ELOOP)});
    EXPECT_EQ(d.Rinomina("song", "gone"), (Avvisi{"", Errore(EEXIST)}));
    EXPECT_EQ(Contenuto(d.Di("song.mel")), "old");
    EXPECT_EQ(d.Elimina("gone"), Avvisi{"gone ?"});
    EXPECT_EQ(d.Elimina("loop"), Avvisi{"loop ?"});
    EXPECT_EQ(d.cartella.Quanti(), 1);
}

TEST(ComandiSuDisco, NamesThatArentTextOrHoldASemicolonOrALineBreakAreNamesLikeAnyOther) {
    for (const char* nome : {"\xFF\xFE", "a;b", "a\nb", "a\r\nb;", " ", "-", "\xC3"}) {
        BancoComandi d;
        d.Cartella(std::string("f") + nome);
        d.File(nome + std::string(".mel"));
        EXPECT_EQ(d.Apri(nome), Avvisi{});
        EXPECT_EQ(d.b.melodia.voci[soprano].testoNote, "60;62;");
        d.b.Voce(soprano, "60;", "1");
        d.p.mnuSalva_Click();
        EXPECT_EQ(Contenuto(d.Di(nome + std::string(".mel"))),
                  FileDi({"60;", "1;", "n;", " 60 ", " 16 "}));
        EXPECT_EQ(d.Rinomina(nome, "plain"), Avvisi{""});
        EXPECT_EQ(d.Elenco(), (Righe{"» ..", std::string("» f") + nome, "plain"}));
        EXPECT_EQ(d.Apri(std::string("» f") + nome), Avvisi{});
        EXPECT_EQ(d.Crea("inner"), Avvisi{""});
        EXPECT_TRUE(fs::is_directory(d.Di(std::string("f") + nome + "/inner")));
    }
}

TEST(ComandiSuDisco, APipeIsNoMelodyAndItsNameIsntTakenFromIt) {
    BancoComandi d;
    d.File("song.mel", "old");
    d.Cartella("folder");
    ASSERT_EQ(mkfifo(d.Di("x.mel").c_str(), 0600), 0);
    ASSERT_EQ(mkfifo(d.Di("folder/x.mel").c_str(), 0600), 0);
    d.Scegli("song");
    EXPECT_EQ(d.Elenco(), (Righe{"» ..", "» folder", "song"}));
    EXPECT_EQ(d.Rinomina("song", "x"), (Avvisi{"", Errore(EEXIST)}));
    EXPECT_TRUE(fs::is_fifo(d.Di("x.mel")));
    EXPECT_EQ(d.Elimina("» folder"), (Avvisi{"folder ?", Errore(ENOTEMPTY)}));
    EXPECT_TRUE(fs::is_fifo(d.Di("folder/x.mel")));
}

TEST(ComandiSuDisco, AFolderThatVanishesWhileItIsShownFailsEachCommandInTheSystemsWords) {
    BancoComandi d;
    d.Cartella("m");
    d.Cartella("m/inner");
    d.File("m/song.mel");
    d.b.globali.percorsoCorrente = d.Di("m/");
    d.p.ListaFD();
    fs::remove_all(d.Di("m"));
    const Righe mostrate = {"» ..", "» inner", "song"};
    EXPECT_EQ(d.Crea("new"), (Avvisi{"", Errore(ENOENT)}));
    d.b.Scegli("song");
    d.b.riquadri.testi = {"aria"};
    d.p.cmdRename_Click();
    EXPECT_EQ(d.Detto(), (Avvisi{"", Errore(ENOENT)}));
    for (const char* riga : {"song", "» inner"}) {
        d.b.Scegli(riga);
        d.b.riquadri.risposte = {true};
        d.p.cmdDelete_Click();
        EXPECT_EQ(d.Detto().back(), Errore(ENOENT)) << riga;
    }
    EXPECT_EQ(d.Elenco(), mostrate);
    EXPECT_FALSE(fs::exists(d.Di("m")));
    EXPECT_EQ(d.Apri("» .."), Avvisi{});
    EXPECT_EQ(d.Elenco(), Righe{"» .."});
}

TEST(ComandiSuDisco, AFolderThatMayNotBeReadIsAnEmptyListAndMayNotBeChanged) {
    BancoComandi d;
    d.Cartella("m");
    d.Cartella("m/inner");
    d.File("m/song.mel");
    fs::permissions(d.Di("m"), fs::perms(0));
    fs::permissions(d.Di(""), fs::perms(0555));
    d.p.ListaFD();
    {
        const Chiunque chiunque;
        EXPECT_EQ(d.Elimina("» m"), (Avvisi{"m ?", Errore(EACCES)}));
        EXPECT_EQ(d.Apri("» m"), Avvisi{});
        EXPECT_EQ(d.Elenco(), Righe{"» .."});
        EXPECT_EQ(d.Crea("new"), (Avvisi{"", Errore(EACCES)}));
    }
    fs::permissions(d.Di(""), fs::perms(0755));
    fs::permissions(d.Di("m"), fs::perms(0700));
    EXPECT_TRUE(fs::exists(d.Di("m/song.mel")));
}

TEST(ComandiSuDisco, AFolderThatMayNotBeWrittenFailsEachCommandAndTheListStays) {
    BancoComandi d;
    d.Cartella("inner");
    d.File("song.mel", "old");
    fs::permissions(d.Di(""), fs::perms(0555));
    fs::permissions(d.Di("inner"), fs::perms(0555));
    {
        const Chiunque chiunque;
        EXPECT_EQ(d.Crea("new"), (Avvisi{"", Errore(EACCES)}));
        EXPECT_EQ(d.Rinomina("song", "aria"), (Avvisi{"", Errore(EACCES)}));
        EXPECT_EQ(d.Elimina("song"), (Avvisi{"song ?", Errore(EACCES)}));
        EXPECT_EQ(d.Elimina("» inner"), (Avvisi{"inner ?", Errore(EACCES)}));
        d.b.Voce(soprano, "60;", "1");
        d.p.SalvaMelodia("song");
        EXPECT_EQ(d.Detto(), Avvisi{Errore(EACCES)});
    }
    fs::permissions(d.Di(""), fs::perms(0755));
    EXPECT_EQ(d.Elenco(), (Righe{"» ..", "» inner", "song"}));
    EXPECT_EQ(Contenuto(d.Di("song.mel")), "old");
}

TEST(ComandiSuDisco, CartellaVuotaSeesWhatTheDiskHas) {
    BancoComandi d;
    const auto vuota = [&d](const std::string& nome) {
        bool risposta = false;
        d.p.CartellaVuota(d.Di(nome), risposta);
        return risposta;
    };
    d.Cartella("a");
    EXPECT_TRUE(vuota("a"));
    d.File("a/notes.txt");
    EXPECT_TRUE(vuota("a"));
    EXPECT_EQ(d.Elimina("» a"), (Avvisi{"a ?", Errore(ENOTEMPTY)}));
    d.File("a/x.MEL");
    EXPECT_FALSE(vuota("a"));
    EXPECT_EQ(d.Elimina("» a"), Avvisi{""});
    fs::remove(d.Di("a/x.MEL"));
    d.Cartella("a/.inner");
    EXPECT_FALSE(vuota("a"));
}

}  // namespace corvana::prova
