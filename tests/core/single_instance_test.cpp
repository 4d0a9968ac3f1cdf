#include "core/single_instance.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <filesystem>

#include "tests/core/temporary_folder.h"

namespace corvana::prova {

namespace {

/// Another process that starts a copy of the program, tells what it found, and stays.
class AltroProcesso {
public:
    explicit AltroProcesso(const std::string& percorso) {
        if (pipe(tubo_.data()) != 0) throw std::runtime_error("no pipe");
        pid_ = fork();
        if (pid_ == 0) Vivi(percorso);
    }
    AltroProcesso(const AltroProcesso&) = delete;
    AltroProcesso& operator=(const AltroProcesso&) = delete;
    ~AltroProcesso() {
        Uccidi();
        close(tubo_[0]);
        close(tubo_[1]);
    }

    /// What it found, once it has.
    bool HaTrovatoUnAltra() const {
        char trovata = 0;
        return read(tubo_[0], &trovata, 1) == 1 && trovata == 'y';
    }
    void Uccidi() {
        if (pid_ <= 0) return;
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
        pid_ = 0;
    }

private:
    [[noreturn]] void Vivi(const std::string& percorso) {
        const IstanzaUnica istanza(percorso);
        const char trovata = istanza.AltraIstanza() ? 'y' : 'n';
        if (write(tubo_[1], &trovata, 1) != 1) _exit(1);
        for (;;)
            pause();
    }

    std::array<int, 2> tubo_{};
    pid_t pid_ = 0;
};

}  // namespace

TEST(IstanzaUnica, TheFirstIsAloneAndTheSecondIsnt) {
    const CartellaProvvisoria cartella;
    const IstanzaUnica prima(cartella.Di("lock"));
    EXPECT_FALSE(prima.AltraIstanza());
    const IstanzaUnica seconda(cartella.Di("lock"));
    EXPECT_TRUE(seconda.AltraIstanza());
}

TEST(IstanzaUnica, TheEndOfTheFirstMakesRoom) {
    const CartellaProvvisoria cartella;
    { const IstanzaUnica prima(cartella.Di("lock")); }
    const IstanzaUnica seconda(cartella.Di("lock"));
    EXPECT_FALSE(seconda.AltraIstanza());
}

TEST(IstanzaUnica, ASecondCopyThatEndsLeavesTheFirstItsLock) {
    const CartellaProvvisoria cartella;
    const IstanzaUnica prima(cartella.Di("lock"));
    { const IstanzaUnica seconda(cartella.Di("lock")); }
    const IstanzaUnica terza(cartella.Di("lock"));
    EXPECT_TRUE(terza.AltraIstanza());
}

TEST(IstanzaUnica, AnotherProcessSeesTheFirst) {
    const CartellaProvvisoria cartella;
    const std::string percorso = cartella.Di("lock");
    const AltroProcesso primo(percorso);
    ASSERT_FALSE(primo.HaTrovatoUnAltra());
    const AltroProcesso secondo(percorso);
    EXPECT_TRUE(secondo.HaTrovatoUnAltra());
    const IstanzaUnica qui(percorso);
    EXPECT_TRUE(qui.AltraIstanza());
}

TEST(IstanzaUnica, AProcessThatWasKilledLeavesNoLockBehind) {
    const CartellaProvvisoria cartella;
    const std::string percorso = cartella.Di("lock");
    AltroProcesso primo(percorso);
    ASSERT_FALSE(primo.HaTrovatoUnAltra());
    ASSERT_TRUE(IstanzaUnica(percorso).AltraIstanza());
    primo.Uccidi();
    EXPECT_FALSE(IstanzaUnica(percorso).AltraIstanza());
}

TEST(IstanzaUnica, WhereNoLockCanBeMadeTheProgramRuns) {
    const CartellaProvvisoria cartella;
    EXPECT_FALSE(IstanzaUnica(cartella.Di("none/lock")).AltraIstanza());
    EXPECT_FALSE(IstanzaUnica(cartella.Di("")).AltraIstanza());
}

TEST(IstanzaUnica, ALockIsntFollowedToWhereALinkPoints) {
    const CartellaProvvisoria cartella;
    std::filesystem::create_symlink(cartella.Di("target"), cartella.Di("lock"));
    const IstanzaUnica istanza(cartella.Di("lock"));
    EXPECT_FALSE(istanza.AltraIstanza());
    EXPECT_FALSE(std::filesystem::exists(cartella.Di("target")));
}

}  // namespace corvana::prova
