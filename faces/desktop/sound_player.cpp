#include "faces/desktop/sound_player.h"

#include <pulse/pulseaudio.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace zelvo {
namespace {

using Clock = std::chrono::steady_clock;

struct Order {
  WaveFile wave;
  Clock::time_point given;
};

/// A server that answers only after that time is not to play what belonged to another moment.
constexpr std::chrono::seconds latestStart{2};
/// How much of a sound the server is to hold: the more, the later it says that the sound is over.
constexpr std::chrono::microseconds writtenAhead = std::chrono::milliseconds{250};
/// The end of the program waits no longer for a thread that does not come back from the system.
constexpr std::chrono::seconds longestFarewell{1};

/// What the game and the player's thread share.
struct Shared {
  Shared() = default;
  Shared(const Shared&) = delete;
  Shared& operator=(const Shared&) = delete;
  ~Shared() { close(bell); }

  std::mutex mutex;  // never held while the sound server is spoken to
  std::condition_variable changed;
  std::function<void()> over;
  std::optional<Order> order;  // not yet taken
  bool playing = false;
  bool there = true;
  bool leave = false;
  bool left = false;
  // Rings until the thread has heard it. The server's loop has a call of its own to wake it up, but
  // forgets one that comes just before it begins to wait.
  const int bell = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
};

/// Plays on the sound server what is ordered, in a thread of its own. Nothing in it waits but
/// the loop, so that a server that does not answer, dies or comes back holds up nobody.
class Playback {
 public:
  explicit Playback(Shared& shared) : shared_(shared) {
    pa_mainloop_api* api = pa_mainloop_get_api(loop_);
    api->io_new(api, shared.bell, PA_IO_EVENT_INPUT, Hear, nullptr);
  }
  Playback(const Playback&) = delete;
  Playback& operator=(const Playback&) = delete;
  ~Playback() {
    CloseStream();
    CloseContext();
    pa_mainloop_free(loop_);
  }

  void Run() {
    while (TakeOrder()) pa_mainloop_iterate(loop_, 1, nullptr);
  }

 private:
  static void Hear(pa_mainloop_api*, pa_io_event*, int bell, pa_io_event_flags_t, void*) {
    eventfd_t rings = 0;
    eventfd_read(bell, &rings);
  }

  /// False if there is no more to do.
  bool TakeOrder() {
    std::optional<Order> order;
    {
      const std::lock_guard lock(shared_.mutex);
      if (shared_.leave) return false;
      order = std::exchange(shared_.order, std::nullopt);
    }
    if (order) Play(std::move(*order));
    return true;
  }

  void Play(Order order) {
    CloseStream();
    order_ = std::move(order);
    written_ = 0;
    if (context_ != nullptr && pa_context_get_state(context_) == PA_CONTEXT_READY) OpenStream();
    if (context_ == nullptr || !PA_CONTEXT_IS_GOOD(pa_context_get_state(context_))) Connect();
  }

  void Finish(bool there) {
    CloseStream();
    const std::lock_guard lock(shared_.mutex);
    shared_.there = there;
    if (shared_.order) return;  // the next sound plays already, as far as the game knows
    shared_.playing = false;
    if (shared_.over) shared_.over();
  }

  // The connection stays for the next sound.

  void Connect() {
    CloseContext();
    pa_proplist* properties = pa_proplist_new();
    pa_proplist_sets(properties, PA_PROP_APPLICATION_ID, "org.zelvo.Zelvo");
    pa_proplist_sets(properties, PA_PROP_APPLICATION_ICON_NAME, "org.zelvo.Zelvo");
    pa_proplist_sets(properties, PA_PROP_MEDIA_ROLE, "game");
    context_ = pa_context_new_with_proplist(pa_mainloop_get_api(loop_), "Zelvo", properties);
    pa_proplist_free(properties);
    pa_context_set_state_callback(
        context_,
        [](pa_context*, void* playback) { static_cast<Playback*>(playback)->ContextChanged(); },
        this);
    if (pa_context_connect(context_, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) Finish(false);
  }

  void ContextChanged() {
    const pa_context_state_t state = pa_context_get_state(context_);
    if (state == PA_CONTEXT_READY) {
      wasConnected_ = true;
      OpenStream();
    } else if (!PA_CONTEXT_IS_GOOD(state)) {
      Finish(std::exchange(wasConnected_, false));
    }
  }

  void CloseContext() {
    if (context_ == nullptr) return;
    pa_context_set_state_callback(context_, nullptr, nullptr);
    pa_context_disconnect(context_);
    pa_context_unref(std::exchange(context_, nullptr));
    wasConnected_ = false;
  }

  // A stream is open only while a sound is heard.

  void OpenStream() {
    pa_sample_spec format;
    format.format = order_.wave.bitsPerSample == 8 ? PA_SAMPLE_U8 : PA_SAMPLE_S16LE;
    format.rate = static_cast<std::uint32_t>(order_.wave.samplesPerSecond);
    format.channels = static_cast<std::uint8_t>(order_.wave.channels);
    stream_ = pa_stream_new(context_, "Sound", &format, nullptr);
    if (stream_ == nullptr) return Finish(true);
    pa_stream_set_state_callback(
        stream_,
        [](pa_stream*, void* playback) { static_cast<Playback*>(playback)->StreamChanged(); },
        this);
    pa_stream_set_write_callback(
        stream_,
        [](pa_stream*, std::size_t room, void* playback) {
          static_cast<Playback*>(playback)->Write(room);
        },
        this);
    constexpr auto byServer = static_cast<std::uint32_t>(-1);
    const auto ahead = static_cast<std::uint32_t>(pa_usec_to_bytes(writtenAhead.count(), &format));
    const pa_buffer_attr buffer{byServer, ahead, byServer, byServer, byServer};
    pa_stream_connect_playback(stream_, nullptr, &buffer, PA_STREAM_ADJUST_LATENCY, nullptr,
                               nullptr);
  }

  void StreamChanged() {
    const pa_stream_state_t state = pa_stream_get_state(stream_);
    const bool late = Clock::now() > order_.given + latestStart;
    if (state == PA_STREAM_READY && late) return Finish(true);
    if (!PA_STREAM_IS_GOOD(state)) Finish(pa_context_errno(context_) != PA_ERR_NOENTITY);
  }

  void Write(std::size_t room) {
    const QByteArray& samples = order_.wave.samples;
    const std::size_t frame = pa_frame_size(pa_stream_get_sample_spec(stream_));
    const std::size_t rest = static_cast<std::size_t>(samples.size()) - written_;
    const std::size_t count = std::min(room - room % frame, rest);
    pa_stream_write(stream_, samples.constData() + written_, count, nullptr, 0, PA_SEEK_RELATIVE);
    written_ += count;
    if (count == rest) Drain();
  }

  void Drain() {
    pa_stream_set_write_callback(stream_, nullptr, nullptr);
    drain_ = pa_stream_drain(
        stream_,
        [](pa_stream*, int, void* playback) { static_cast<Playback*>(playback)->Drained(); }, this);
    if (drain_ == nullptr) Finish(true);
  }

  void Drained() {
    pa_operation_unref(std::exchange(drain_, nullptr));
    Finish(true);
  }

  void CloseStream() {
    if (stream_ == nullptr) return;
    if (drain_ != nullptr) {
      pa_operation_cancel(drain_);
      pa_operation_unref(std::exchange(drain_, nullptr));
    }
    pa_stream_set_state_callback(stream_, nullptr, nullptr);
    pa_stream_set_write_callback(stream_, nullptr, nullptr);
    pa_stream_disconnect(stream_);
    pa_stream_unref(std::exchange(stream_, nullptr));
  }

  Shared& shared_;
  pa_mainloop* loop_ = pa_mainloop_new();
  pa_context* context_ = nullptr;
  pa_stream* stream_ = nullptr;
  pa_operation* drain_ = nullptr;  // tells when all that was written has been heard
  bool wasConnected_ = false;
  Order order_;
  std::size_t written_ = 0;  // bytes of the order's samples
};

void RunPlayback(const std::shared_ptr<Shared>& shared) {
  Playback(*shared).Run();
  const std::lock_guard lock(shared->mutex);
  shared->left = true;
  shared->changed.notify_all();
}

class ServerPlayer : public SoundPlayer {
 public:
  explicit ServerPlayer(std::function<void()> over) { shared_->over = std::move(over); }

  ~ServerPlayer() override {
    if (!thread_.joinable()) return;
    std::unique_lock lock(shared_->mutex);
    shared_->over = nullptr;
    shared_->leave = true;
    eventfd_write(shared_->bell, 1);
    const bool left =
        shared_->changed.wait_for(lock, longestFarewell, [this] { return shared_->left; });
    lock.unlock();
    left ? thread_.join() : thread_.detach();
  }

  void Start(const WaveFile& wave) override {
    const std::lock_guard lock(shared_->mutex);
    shared_->order = {wave, Clock::now()};
    shared_->playing = true;
    eventfd_write(shared_->bell, 1);
    if (!thread_.joinable()) thread_ = std::thread(RunPlayback, shared_);
  }

  bool IsPlaying() override {
    const std::lock_guard lock(shared_->mutex);
    return shared_->playing;
  }

  bool IsThere() override {
    const std::lock_guard lock(shared_->mutex);
    return shared_->there;
  }

 private:
  // The thread has its part in it, should it outlive the player.
  std::shared_ptr<Shared> shared_ = std::make_shared<Shared>();
  std::thread thread_;
};

}  // namespace

std::unique_ptr<SoundPlayer> MakeSoundPlayer(std::function<void()> over) {
  return std::make_unique<ServerPlayer>(std::move(over));
}

}  // namespace zelvo
