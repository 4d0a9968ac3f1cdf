#include "core/file_faults.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <set>
#include <string>

namespace corvana::prova {

namespace {

constexpr int ultimoErrore = 133;
const std::set<int> pieno = {ENOSPC, EDQUOT};
const std::set<int> nonPronto = {ENODEV, ENXIO, ENOMEDIUM, ENODATA, EIO};

}  // namespace

TEST(GuastoFile, AFullDiskIs61) {
    for (const int errore : pieno)
        EXPECT_EQ(GuastoFile(errore).Numero(), 61) << std::strerror(errore);
}

TEST(GuastoFile, AMediumThatIsMissingOrDoesntAnswerIs71) {
    for (const int errore : nonPronto)
        EXPECT_EQ(GuastoFile(errore).Numero(), 71) << std::strerror(errore);
}

TEST(GuastoFile, AnyOtherErrorKeepsItsNumber) {
    for (const int errore : {ENOENT, EACCES, EROFS, EISDIR, ENOTDIR, EFBIG, ENAMETOOLONG, EPERM})
        EXPECT_EQ(GuastoFile(errore).Numero(), errore) << std::strerror(errore);
}

TEST(GuastoFile, NoOtherErrorIsTakenForAFullDisk) {
    for (int errore = 1; errore <= ultimoErrore; ++errore)
        EXPECT_EQ(GuastoFile(errore).Numero() == guastoDiscoPieno, pieno.contains(errore))
            << errore << ": " << std::strerror(errore);
}

TEST(GuastoFile, EachErrorHasTheSystemsDescription) {
    for (int errore = 1; errore <= ultimoErrore; ++errore) {
        const std::string descrizione = std::strerror(errore);
        EXPECT_EQ(GuastoFile(errore).what(), descrizione);
    }
    EXPECT_STREQ(GuastoFile(ENOSPC).what(), "No space left on device");
}

TEST(Controlla, ThrowsTheFaultOfAnErrorAndNothingForNone) {
    EXPECT_NO_THROW(Controlla(0));
    try {
        Controlla(ENOSPC);
        FAIL() << "nothing was thrown";
    } catch (const Guasto& guasto) {
        EXPECT_EQ(guasto.Numero(), guastoDiscoPieno);
        EXPECT_STREQ(guasto.what(), "No space left on device");
    }
}

}  // namespace corvana::prova
