#include "faces/desktop/wave_file.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <algorithm>

namespace zelvo {
namespace {

/// No cue is longer than seconds; a larger file is none of ours.
constexpr qint64 largestFile = 16 << 20;

template <class Number>
int NumberAt(const QByteArray& bytes, qsizetype place) {
  return static_cast<int>(qFromLittleEndian<Number>(bytes.constData() + place));
}

/// The chunk of that name, without its header; cut short where the file ends.
QByteArray Chunk(const QByteArray& file, const char* name) {
  constexpr qsizetype header = 8;
  qsizetype place = 12;
  while (place + header <= file.size()) {
    const qsizetype size = qFromLittleEndian<quint32>(file.constData() + place + 4);
    if (file.mid(place, 4) == name) return file.mid(place + header, size);
    place += header + size + size % 2;
  }
  return {};
}

}  // namespace

std::chrono::milliseconds WaveFile::LongestWait() const {
  const std::chrono::milliseconds length(samples.size() / BytesPerFrame() * 1000 /
                                         samplesPerSecond);
  return std::min<std::chrono::milliseconds>(length, std::chrono::seconds(10));
}

std::optional<WaveFile> ReadWaveFile(const QString& path) {
  constexpr int uncompressed = 1;
  // Opening a pipe or a device could wait for ever, and reading one never end.
  if (!QFileInfo(path).isFile()) return std::nullopt;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  const QByteArray bytes = file.read(largestFile + 1);
  if (bytes.size() > largestFile) return std::nullopt;
  if (bytes.left(4) != "RIFF" || bytes.mid(8, 4) != "WAVE") return std::nullopt;
  const QByteArray format = Chunk(bytes, "fmt ");
  if (format.size() < 16 || NumberAt<quint16>(format, 0) != uncompressed) return std::nullopt;
  WaveFile wave{NumberAt<quint16>(format, 2), NumberAt<quint32>(format, 4),
                NumberAt<quint16>(format, 14), Chunk(bytes, "data")};
  const bool sound = (wave.channels == 1 || wave.channels == 2) &&
                     (wave.bitsPerSample == 8 || wave.bitsPerSample == 16) &&
                     wave.samplesPerSecond >= 1'000 && wave.samplesPerSecond <= 192'000 &&
                     wave.samples.size() >= wave.BytesPerFrame();
  if (!sound) return std::nullopt;
  wave.samples.chop(wave.samples.size() % wave.BytesPerFrame());
  return wave;
}

}  // namespace zelvo
