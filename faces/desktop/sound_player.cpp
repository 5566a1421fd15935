#include "faces/desktop/sound_player.h"

#include <QAudioDevice>
#include <QAudioSink>
#include <QBuffer>
#include <QMediaDevices>

namespace zelvo {
namespace {

class DevicePlayer : public SoundPlayer {
 public:
  bool IsThere() override { return !QMediaDevices::defaultAudioOutput().isNull(); }

  void Start(const WaveFile& wave) override {
    sink_.reset();  // it reads from the samples
    samples_.close();
    samples_.setData(wave.samples);
    samples_.open(QIODevice::ReadOnly);
    QAudioFormat format;
    format.setChannelCount(wave.channels);
    format.setSampleRate(wave.samplesPerSecond);
    format.setSampleFormat(wave.bitsPerSample == 8 ? QAudioFormat::UInt8 : QAudioFormat::Int16);
    sink_ = std::make_unique<QAudioSink>(QMediaDevices::defaultAudioOutput(), format);
    sink_->start(&samples_);
  }

  bool IsPlaying() override { return sink_ && sink_->state() != QAudio::StoppedState; }

 private:
  QBuffer samples_;
  std::unique_ptr<QAudioSink> sink_;
};

}  // namespace

std::unique_ptr<SoundPlayer> MakeSoundPlayer() { return std::make_unique<DevicePlayer>(); }

}  // namespace zelvo
