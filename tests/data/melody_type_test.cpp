// What the desktop is told of a melody's file.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace corvana::prova {
namespace {

std::string Desktop(const std::string& file) {
    std::ostringstream testo;
    testo << std::ifstream(std::string(CORVANA_DATA_SOURCE "/desktop/") + file, std::ios::binary)
                 .rdbuf();
    return testo.str();
}

bool Dice(const std::string& testo, const std::string& parte) {
    return testo.find(parte) != std::string::npos;
}

const std::string tipo = "application/x-corvana-melody";

}  // namespace

TEST(TipoMelodia, HasAnExtensionAndANameInBothLanguages) {
    const std::string xml = Desktop("org.corvana.Corvana.mime.xml");
    EXPECT_TRUE(Dice(xml, "<mime-type type=\"" + tipo + "\">"));
    EXPECT_TRUE(Dice(xml, "<glob pattern=\"*.mel\"/>"));
    EXPECT_TRUE(Dice(xml, "<comment>Corvana melody</comment>"));
    EXPECT_TRUE(Dice(xml, "<comment xml:lang=\"it\">Melodia di Corvana</comment>"));
    EXPECT_FALSE(Dice(xml, "case-sensitive")) << "files of older systems bear it in capitals";
}

TEST(TipoMelodia, HasAPictureUnderItsName) {
    std::string nome = tipo;
    std::replace(nome.begin(), nome.end(), '/', '-');
    EXPECT_TRUE(Dice(Desktop(nome + ".svg"), "</svg>"));
}

TEST(TipoMelodia, TheProgramClaimsNoTypeSinceItOpensNoFileThatItIsStartedWith) {
    const std::string voce = Desktop("org.corvana.Corvana.desktop");
    EXPECT_TRUE(Dice(voce, "\nExec=corvana\n"));
    EXPECT_FALSE(Dice(voce, "MimeType"));
    EXPECT_FALSE(Dice(Desktop("org.corvana.Corvana.metainfo.xml"), "mediatype"));
}

}  // namespace corvana::prova
