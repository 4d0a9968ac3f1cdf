#include "core/regional.h"

#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <cstdlib>
#include <optional>
#include <string>

namespace corvana::prova {

namespace {

/// While it lives the process has the regional variables that the test tells, and no others.
class AmbienteRegionale {
public:
    AmbienteRegionale() {
        for (std::size_t i = 0; i < nomi.size(); ++i) {
            if (const char* prima = std::getenv(nomi[i])) prima_[i] = prima;
            unsetenv(nomi[i]);
        }
        setenv("LOCPATH", CORVANA_LOCALES, 1);
    }
    AmbienteRegionale(const AmbienteRegionale&) = delete;
    AmbienteRegionale& operator=(const AmbienteRegionale&) = delete;
    ~AmbienteRegionale() {
        for (std::size_t i = 0; i < nomi.size(); ++i)
            if (prima_[i])
                setenv(nomi[i], prima_[i]->c_str(), 1);
            else
                unsetenv(nomi[i]);
    }

    char Separatore(const char* nome, const char* regione) {
        setenv(nome, regione, 1);
        return SeparatoreDiSistema();
    }

private:
    static constexpr std::array nomi = {"LC_ALL", "LC_NUMERIC", "LC_MESSAGES", "LANG", "LOCPATH"};
    std::array<std::optional<std::string>, nomi.size()> prima_;
};

}  // namespace

TEST(SeparatoreDiSistema, IsTheCommaInItaly) {
    AmbienteRegionale ambiente;
    EXPECT_EQ(ambiente.Separatore("LC_ALL", "it_IT.UTF-8"), ',');
}

TEST(SeparatoreDiSistema, IsThePointInTheRegionOfNoCountry) {
    AmbienteRegionale ambiente;
    EXPECT_EQ(SeparatoreDiSistema(), '.');
    EXPECT_EQ(ambiente.Separatore("LC_ALL", "C"), '.');
    EXPECT_EQ(ambiente.Separatore("LC_ALL", "POSIX"), '.');
    EXPECT_EQ(ambiente.Separatore("LC_ALL", "C.UTF-8"), '.');
}

TEST(SeparatoreDiSistema, IsThePointInARegionThatTheMachineDoesntHave) {
    AmbienteRegionale ambiente;
    EXPECT_EQ(ambiente.Separatore("LC_ALL", "xx_XX.UTF-8"), '.');
    EXPECT_EQ(ambiente.Separatore("LC_ALL", "it_IT.nonsense"), '.');
}

TEST(SeparatoreDiSistema, TheSettingForNumbersCountsMoreThanThatForAll) {
    AmbienteRegionale ambiente;
    EXPECT_EQ(ambiente.Separatore("LANG", "it_IT.UTF-8"), ',');
    EXPECT_EQ(ambiente.Separatore("LC_NUMERIC", "C"), '.');
    EXPECT_EQ(ambiente.Separatore("LANG", "C"), '.');
    EXPECT_EQ(ambiente.Separatore("LC_NUMERIC", "it_IT.UTF-8"), ',');
    EXPECT_EQ(ambiente.Separatore("LC_ALL", "C"), '.');
}

TEST(SeparatoreDiSistema, AsksTheEnvironmentAndNotWhatTheProcessHasTaken) {
    AmbienteRegionale ambiente;
    ASSERT_EQ(ambiente.Separatore("LC_ALL", "it_IT.UTF-8"), ',');
    EXPECT_STREQ(std::localeconv()->decimal_point, ".");
}

}  // namespace corvana::prova
