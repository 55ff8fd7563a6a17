// Where a script's pictures go, and what they never touch.

#include "host/script/picture_place.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/support/temporary_folder.h"

namespace orvendal {
namespace {

class PicturePlaces : public testing::Test {
 protected:
  PicturePlaces() { std::filesystem::create_directory(folder / "guiones"); }
  std::string Refusal(const std::string& file) const {
    try {
      const PicturePlace place(file, folder / "guiones");
      return {};
    } catch (const NoPlaceForPicture& reason) {
      return reason.what();
    }
  }

  TemporaryFolder folder;
  std::string scripts = folder / "guiones/";
};

TEST_F(PicturePlaces, ANewFileInTheScriptsFolderOrBelowIsOne) {
  std::filesystem::create_directory(folder / "guiones/bajo");
  for (const std::string& file : {scripts + "a.png", scripts + "bajo/b.png", scripts + "bajo/../c.png"}) {
    PicturePlace place(file, folder / "guiones");
    EXPECT_EQ(place.Path(), std::filesystem::canonical(file).string());
    EXPECT_TRUE(std::filesystem::exists(file));
    place.Keep();
  }
  EXPECT_TRUE(std::filesystem::exists(scripts + "c.png"));
}

TEST_F(PicturePlaces, WhatIsNotKeptGoesAgain) {
  EXPECT_EQ(Refusal(scripts + "a.png"), "");
  EXPECT_FALSE(std::filesystem::exists(scripts + "a.png"));
}

TEST_F(PicturePlaces, WhatIsThereIsRefusedALinkToo) {
  std::ofstream(scripts + "hay.png") << "x";
  std::filesystem::create_symlink(folder / "nueva.png", scripts + "enlace.png");
  std::filesystem::create_directory(scripts + "carpeta.png");
  for (const std::string& file : {scripts + "hay.png", scripts + "enlace.png", scripts + "carpeta.png"}) {
    EXPECT_EQ(Refusal(file), "ya existe " + file + ": una imagen no sustituye a otro fichero");
  }
  EXPECT_EQ(std::filesystem::file_size(scripts + "hay.png"), 1U);
  EXPECT_FALSE(std::filesystem::exists(folder / "nueva.png"));
}

TEST_F(PicturePlaces, OtherFoldersAreRefusedHoweverTheyAreReached) {
  std::filesystem::create_directory(folder / "guiones2");
  std::filesystem::create_symlink("..", scripts + "fuera");
  for (const std::string& file :
       {folder / "a.png", scripts + "../a.png", scripts + "fuera/a.png", scripts + "fuera/guiones2/a.png",
        folder / "guiones2/a.png", std::string("/a.png"), std::string("../a.png")}) {
    EXPECT_EQ(Refusal(file),
              "una imagen se guarda dentro de la carpeta del guion o de la actual, y no en " + file);
  }
  EXPECT_EQ(Refusal(scripts + "fuera/guiones/a.png"), "") << "it lies inside after all";
}

TEST_F(PicturePlaces, OnlyPicturesAreWritten) {
  for (const std::string& file : {scripts + "a.jpg", scripts + "a", scripts + "a.png.sh", scripts + "."}) {
    EXPECT_EQ(Refusal(file), "una imagen se guarda en un fichero acabado en .png, y no en " + file);
  }
  EXPECT_NE(Refusal(scripts + std::string("a.sh\0.png", 9)), "");
  EXPECT_FALSE(std::filesystem::exists(scripts + "a.sh"));
}

TEST_F(PicturePlaces, AFolderThatIsNotThereIsTold) {
  EXPECT_EQ(Refusal(scripts + "no/a.png"), "no existe la carpeta de la imagen " + scripts + "no/a.png");
  EXPECT_EQ(Refusal(scripts + "no/../a.png"), "no existe la carpeta de la imagen " + scripts + "no/../a.png");
}

}  // namespace
}  // namespace orvendal
