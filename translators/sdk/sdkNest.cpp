#include "sdk/sdkNest.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr std::int64_t countless = 1'000'000'000'000'000'000;

} // namespace

void sdkNest::take()
{
    enum class State : char { unseen, open, done };
    std::vector<State> states(m_uses.size(), State::unseen);
    m_spread.assign(m_uses.size(), 0);
    m_depths.assign(m_uses.size(), 0);
    // Each thing with the next one that it uses.
    std::vector<std::pair<std::size_t, std::size_t>> path;
    for (std::size_t start = 0; start < m_uses.size() && m_cycle.empty(); ++start) {
        if (states[start] == State::unseen) {
            states[start] = State::open;
            path.emplace_back(start, 0);
        }
        while (!path.empty()) {
            auto & [thing, next] = path.back();
            if (next == m_uses[thing].size()) {
                finish(thing);
                states[thing] = State::done;
                path.pop_back();
                continue;
            }
            auto const used = m_uses[thing][next++];
            if (states[used] == State::unseen) {
                states[used] = State::open;
                path.emplace_back(used, 0);
            } else if (states[used] == State::open) {
                auto const first = std::find_if(
                    path.begin(), path.end(), [used = used](auto const & one) { return one.first == used; });
                std::transform(first, path.end(), std::back_inserter(m_cycle),
                               [](auto const & one) { return one.first; });
                return;
            }
        }
    }
}

void sdkNest::finish(std::size_t thing)
{
    std::int64_t sum = m_weights[thing];
    int depth = 0;
    for (auto const used : m_uses[thing]) {
        sum = std::min(sum + m_spread[used], countless);
        depth = std::max(depth, m_depths[used]);
    }
    m_spread[thing] = sum;
    m_depths[thing] = depth + 1;
    m_depth = std::max(m_depth, depth + 1);
}

std::int64_t sdkNest::largest_spread() const
{
    return m_spread.empty() ? 0 : *std::max_element(m_spread.begin(), m_spread.end());
}
