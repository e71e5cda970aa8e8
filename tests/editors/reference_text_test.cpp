// Walking, listing and naming in the reference browser.
#include "editors/reference/reference_text.h"

#include "editors/reference/reference_list.h"
#include "editors/reference/reference_place.h"
#include "tests/support/engine_fixture.h"

namespace quenloft {
namespace {

TEST(ReferenceText, CapitalsAreTheMessage) {
    const struct {
        const char *name, *lower, *first, *upper, *everyWord;
    } cases[] = {
        {"orc camp.tbl", "orc camp.tbl", "Orc camp.tbl", "ORC CAMP.TBL", "Orc camP.tbl"},
        {"~secret.spt", "~secret.spt", "~Secret.spt", "~SECRET.SPT", "~SecreT.spt"},
        {"ORCS.TBL", "orcs.tbl", "Orcs.tbl", "ORCS.TBL", "OrcS.TBL"},
        {"\xC3\xA9lf\xC3\xA9.tbl", "\xC3\xA9lf\xC3\xA9.tbl", "\xC3\x89lf\xC3\xA9.tbl",
         "\xC3\x89LF\xC3\x89.TBL", "\xC3\x89lf\xC3\x89.tbl"},
        {"a.tbl", "a.tbl", "A.tbl", "A.TBL", "A.tbl"},
        {"~~x.tbl", "~~x.tbl", "~~x.tbl", "~~X.TBL", "~~X.tbl"},
        {"~", "~", "~", "~", "~"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(InFileNameCase(NameCase::Default, c.name), c.lower);
        EXPECT_EQ(InFileNameCase(NameCase::First, c.name), c.first);
        EXPECT_EQ(InFileNameCase(NameCase::Upper, c.name), c.upper);
        EXPECT_EQ(InFileNameCase(NameCase::EveryWord, c.name), c.everyWord);
    }
}

TEST(ReferencePlace, KeepsTheWayFromWhereItBegan) {
    ReferencePlace place("C:\\Lib\\Tables");
    const auto stands = [&place](const std::string& folder, const std::string& relative) {
        EXPECT_EQ(place.Folder(), folder);
        EXPECT_EQ(place.RelativePath(), relative);
    };
    place.Enter("Monsters");
    stands("C:\\Lib\\Tables\\Monsters", "Monsters\\");
    EXPECT_EQ(place.GoUp(), "Monsters");
    stands("C:\\Lib\\Tables", "");
    EXPECT_EQ(place.GoUp(), "Tables");
    place.Enter("Monsters");
    place.Enter("Undead..");
    stands("C:\\Lib\\Monsters\\Undead..", "..\\Monsters\\Undead..\\");
    for (int i = 0; i < 4; ++i) {
        place.GoUp();
    }
    stands("C:", "..\\..\\");
    EXPECT_TRUE(place.IsDriveRoot());
    EXPECT_EQ(place.PathOf(""), "C:\\");
    EXPECT_EQ(ReferencePlace("Z:\\").Folder(), "Z:");
}

class ReferenceListTest : public EngineFixture {
  protected:
    void Table(const std::string& name, const std::string& title) {
        folder.WriteTable(name, title, "x");
    }
    void Fill(bool showHidden = false) {
        list.Fill(ReferencePlace(folder.LibraryPath("lib")), showHidden);
        while (list.ReadOne()) {
        }
        list.Arrange();
    }
    std::string Rows() const {
        std::string rows;
        for (std::size_t row = 0; row < list.RowCount(); ++row) {
            rows += list.Row(row).name + "=" + list.Row(row).title + " ";
        }
        return rows;
    }

    ReferenceList list{engine};
};

TEST_F(ReferenceListTest, ListsFoldersTablesAndScriptsButNothingHiddenByATilde) {
    for (const char* name :
         {"lib/sub/x", "lib/~old/x", "lib/.git/x", "lib/notes.txt", "lib/a.b.tbl",
          "lib/Script.v1.SPT", "lib/village.SPT", "lib/bad.tbl", "lib/~s.spt"}) {
        folder.Write(name, "x");
    }
    Table("lib/Orcs.TBL", "Wild orcs");
    Table("lib/elves.tbl", " ");
    Fill();
    EXPECT_EQ(Rows(),
              ".git=.git sub=sub bad.tbl=!Invalid fileheader! elves.tbl=elves "
              "Orcs.TBL=Wild orcs village.SPT=village ");
    Fill(true);
    EXPECT_EQ(Rows(),
              ".git=.git sub=sub ~old=~old bad.tbl=!Invalid fileheader! elves.tbl=elves "
              "Orcs.TBL=Wild orcs village.SPT=village ~s.spt=~s ");
}

TEST_F(ReferenceListTest, FiltersAndOrdersByTitleAndName) {
    folder.Write("lib/camps/x", "");
    Table("lib/a.tbl", "The Orc camp");
    Table("lib/b.tbl", "Elves");
    Table("lib/camp.tbl", "An orc");
    Fill();
    list.SetFilter(" ORC  camp ");
    EXPECT_EQ(Rows(), "a.tbl=The Orc camp camp.tbl=An orc ");
    list.SetFilter("");
    list.SetOrder(ReferenceList::Order::Title, true);
    EXPECT_EQ(Rows(), "camps=camps a.tbl=The Orc camp b.tbl=Elves camp.tbl=An orc ");
    list.SetFilter("nothing");
    EXPECT_EQ(Rows(), "");
    EXPECT_FALSE(list.IsEmpty());
}

}  // namespace
}  // namespace quenloft
