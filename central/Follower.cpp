// SPDX-License-Identifier: MIT
#include "central/Follower.h"

#include "central/BookError.h"
#include "launcher/Refusal.h"

#include <algorithm>
#include <string>
#include <utility>

Follower::Follower(
    const CentralShop& shop, Ending& ending, Times times, std::function<void(const Words&)> say)
    : shop_(shop)
    , ending_(ending)
    , times_(times)
    , say_(std::move(say))
    , reading_{nullptr, ending.isAsked()}
    , till_(shop.path(), reading_, Timing::ofTheMachine())
{ }

void Follower::run()
{
    std::string known;
    auto pause = times_.look;
    const auto trouble = [&](const Words& words) {
        if (std::exchange(known, words.english) != words.english) {
            say_(words);
        }
        pause = std::clamp(pause * 2, times_.firstRetry, times_.lastRetry);
    };
    do {
        try {
            look();
            known.clear();
            pause = times_.look;
        } catch (const ReadingStopped&) {
            return;
        } catch (const BookError& error) {
            if (error.isForGood() || (!sent_ && !error.isPassing())) {
                throw;
            }
            trouble(error.words());
        } catch (const Refusal& refusal) {
            if (!sent_) {
                throw;
            }
            trouble(refusal.words());
        } catch (const SalesError& error) {
            if (!sent_) {
                throw;
            }
            trouble(error.sentence().toStdString());
        }
    } while (ending_.wait(pause));
}

void Follower::look()
{
    const auto now = std::chrono::steady_clock::now();
    const TillDatabase::State state = till_.state();
    const bool isWhole = !sent_ || sent_->file != state.file || now >= wholeLook_;
    if (!isWhole && *sent_ == state) {
        return;
    }
    Book book = shop_.book();
    Sender sender(book, till_);
    sender.sendLines(isWhole ? Sender::Depth::All : Sender::Depth::New);
    if (isWhole) {
        sender.sendMenu();
        wholeLook_ = now + times_.wholeLook;
    }
    shop_.noteReached();
    sent_ = state;
}
