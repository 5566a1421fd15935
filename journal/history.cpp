#include "journal/history.h"

namespace zelvo {
namespace {

GameList Beginning(const GameList& list, std::size_t entries) {
  return {list.begin(), list.begin() + static_cast<std::ptrdiff_t>(entries)};
}

}  // namespace

GameList History::TakeBack(const Journal& now) {
  const auto& steps = now.deedsAtRest();
  if (!CanDoAgain(now)) {
    list_ = now.list();
    steps_ = steps;
  }
  return Beginning(now.list(), steps.back());
}

GameList History::DoAgain(const Journal& now) const {
  const std::size_t following = now.deedsAtRest().size() + 1;
  return following < steps_.size() ? Beginning(list_, steps_[following]) : list_;
}

void History::Follow(const Journal& now) {
  if (CanDoAgain(now) && now.deedsAtRest().size() != standing_) Forget();
}

}  // namespace zelvo
