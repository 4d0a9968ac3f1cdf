#include "composer/melody_files.h"

#include <gtest/gtest.h>

#include "tests/support/memory_files.h"

namespace corvana::prova {

TEST(MelodieInCartella, FindTheFileThatHasTheNameWhateverItsExtensionsCase) {
    FileInMemoria file;
    file.contenuti = {
        {"/c/old.MEL", ""}, {"/c/both.MEL", ""}, {"/c/both.mel", ""}, {"/c/two.Mel", ""}};
    file.cartelle = {"/c/folder.MEL"};
    const MelodieInCartella melodie(file, "/c/");
    EXPECT_EQ(melodie.Percorso("old"), "/c/old.MEL");
    EXPECT_EQ(melodie.Percorso("both"), "/c/both.mel") << "the usual one";
    EXPECT_EQ(melodie.Percorso("two"), "/c/two.Mel");
    EXPECT_EQ(melodie.Percorso("new"), "/c/new.mel");
    EXPECT_EQ(melodie.Percorso("folder"), "/c/folder.mel");
}

}  // namespace corvana::prova
