#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// What uses what, such as assemblies their components, numbered from 0. A thing that is used twice is there
// twice in the list of its user.
class sdkNest {
public:
    explicit sdkNest(std::size_t things) : m_uses(things), m_weights(things, 1) {}

    void use(std::size_t user, std::size_t used) { m_uses[user].push_back(used); }
    // How much a thing counts where it is used, without what it uses itself; 1 by default.
    void weigh(std::size_t thing, std::int64_t weight) { m_weights[thing] = weight; }

    // Goes through all of it once, without recursion.
    void take();

    // The things on the way from one to itself, the first not repeated at the end; empty when there is none.
    // The other answers mean nothing then.
    std::vector<std::size_t> const & cycle() const { return m_cycle; }
    // How many things lie within each other at most.
    int depth() const { return m_depth; }
    // The sum of weights when the thing, and all that it uses, is spread out. Stops at 1e18.
    std::int64_t spread(std::size_t thing) const { return m_spread[thing]; }
    // The largest of them.
    std::int64_t largest_spread() const;

private:
    void finish(std::size_t thing);

    std::vector<std::vector<std::size_t>> m_uses;
    std::vector<std::int64_t> m_weights;
    std::vector<std::int64_t> m_spread;
    std::vector<int> m_depths;
    std::vector<std::size_t> m_cycle;
    int m_depth = 0;
};
