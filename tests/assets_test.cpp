#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>

#include "presentation/cues.h"
#include "surface/windows/picture.h"

namespace zelvo {
namespace {

const std::filesystem::path assets = std::filesystem::path(ZELVO_SOURCE_DIR) / "assets";

std::string Read(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(Pictures, EveryIdentityHasArtworkOfItsOwn) {
  std::map<std::string, std::string> artwork;
  for (int id = 1; id < static_cast<int>(PictureId::Count); ++id) {
    const auto picture = static_cast<PictureId>(id);
    const std::string svg = Read(assets / "pictures" / PictureFile(picture));
    EXPECT_NE(svg.find("<svg"), std::string::npos) << PictureFile(picture);
    const auto [same, isNew] = artwork.emplace(svg, PictureFile(picture));
    EXPECT_TRUE(isNew) << PictureFile(picture) << " is the same as " << same->second;
    EXPECT_EQ(PictureOwnedBy(PictureOwner(picture)), picture);
  }
}

struct Wave {
  unsigned rate = 0;
  int channels = 0;
  int bits = 0;
  double seconds = 0;
  int peak = 0;
};

std::uint32_t Number(const std::string& bytes, std::size_t at, int size) {
  std::uint32_t number = 0;
  for (int i = size - 1; i >= 0; --i) {
    number = number << 8U | static_cast<unsigned char>(bytes.at(at + i));
  }
  return number;
}

Wave ReadWave(const std::string& bytes) {
  Wave wave;
  if (bytes.substr(0, 4) != "RIFF" || bytes.substr(8, 8) != "WAVEfmt ") return wave;
  wave.channels = static_cast<int>(Number(bytes, 22, 2));
  wave.rate = Number(bytes, 24, 4);
  wave.bits = static_cast<int>(Number(bytes, 34, 2));
  const std::size_t data = bytes.find("data", 36) + 8;
  const std::uint32_t size = Number(bytes, data - 4, 4);
  wave.seconds = static_cast<double>(size) / Number(bytes, 28, 4);
  for (std::size_t at = data; at + 1 < data + size; at += 2) {
    wave.peak = std::max(wave.peak, std::abs(static_cast<std::int16_t>(Number(bytes, at, 2))));
  }
  return wave;
}

TEST(Cues, EveryCueHasASoundThatIsHeardAndNotTooLong) {
  std::set<std::string> files;
  for (int row = 0; row < static_cast<int>(Cue::Count); ++row) {
    const Cue cue = static_cast<Cue>(row);
    SCOPED_TRACE(CueFile(cue));
    files.insert(CueFile(cue));
    const Wave wave = ReadWave(Read(assets / "sounds" / CueFile(cue)));
    EXPECT_TRUE(wave.rate == 22'050 || wave.rate == 44'100);
    EXPECT_EQ(wave.bits, 16);
    EXPECT_GT(wave.peak, 3'000) << "hardly heard";
    EXPECT_LT(wave.peak, 32'700) << "clipped";
    const bool opening = cue == Cue::Opening || cue == Cue::NewGame;
    const double waiting = opening ? 1.6 : 0.8;
    EXPECT_LE(wave.seconds, CueWaits(cue) ? waiting : 3.0);
    EXPECT_GT(wave.seconds, 0.05);
  }
  EXPECT_EQ(files.size(), 23U);
}

}  // namespace
}  // namespace zelvo
