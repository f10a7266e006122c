#include "cntr/exchange_order.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace {

using Order = std::vector<std::size_t>;

bool goesUp(const std::vector<double>& keys) { return std::is_sorted(keys.begin(), keys.end()); }

bool goesDown(const std::vector<double>& keys) {
    return std::is_sorted(keys.begin(), keys.end(), [](double a, double b) { return a > b; });
}

// Keys that go down, in blocks of equal ones. The exchanges of one i take the head of the last block to the
// front and the head of every other one behind its block.
Order upwards(const std::vector<double>& keys) {
    Order order;
    order.reserve(keys.size());
    for (std::size_t end = keys.size(); end > 0;) {
        std::size_t begin = end - 1;
        while (begin > 0 && keys[begin - 1] == keys[end - 1]) --begin;
        const std::size_t turned = order.size() % (end - begin);
        for (std::size_t i = begin; i < end; ++i) {
            const std::size_t place = i + turned;
            order.push_back(place < end ? place : place - (end - begin));
        }
        end = begin;
    }
    return order;
}

// Distinct keys have one order, however it is reached. Empty when some are equal.
Order ofDistinct(const std::vector<double>& keys, Order order) {
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
    const auto equal = std::adjacent_find(order.begin(), order.end(),
                                          [&](std::size_t a, std::size_t b) { return keys[a] == keys[b]; });
    return equal == order.end() ? order : Order();
}

// Keys at places, and where the next lesser one stands: a tree of least keys.
class Places {
public:
    explicit Places(const std::vector<double>& keys) {
        while (leaves_ < keys.size()) leaves_ *= 2;
        least_.assign(2 * leaves_, kNone);
        for (std::size_t i = 0; i < keys.size(); ++i)
            least_[leaves_ + i] = std::isnan(keys[i]) ? kNone : keys[i];
        for (std::size_t node = leaves_; node-- > 1;) update(node);
    }

    void set(std::size_t place, double key) {
        std::size_t node = leaves_ + place;
        least_[node] = key;
        while (node > 1) update(node /= 2);
    }

    static constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

    std::size_t nextLess(std::size_t after, double key) const {
        std::size_t node = leaves_ + after;
        do { // up to the first subtree to the right that has one
            while (node % 2 == 1) node /= 2;
            if (node == 0) return kNowhere;
            ++node;
        } while (!(least_[node] < key));
        while (node < leaves_) node = least_[2 * node] < key ? 2 * node : 2 * node + 1;
        return node - leaves_;
    }

private:
    static constexpr double kNone = std::numeric_limits<double>::infinity();

    void update(std::size_t node) { least_[node] = std::min(least_[2 * node], least_[2 * node + 1]); }

    std::size_t leaves_ = 1;
    std::vector<double> least_;
};

// Goes from exchange to exchange. Where they are too many for that, the rest is made as written.
void exchange(std::vector<double>& keys, Order& order) {
    constexpr std::size_t kMostForEach = 64;
    Places places(keys);
    std::size_t made = 0;
    for (std::size_t i = 0; i + 1 < keys.size(); ++i) {
        if (made > kMostForEach * keys.size()) {
            gk_Exchange(keys, order, keys.size(), i);
            return;
        }
        if (std::isnan(keys[i])) continue;
        for (std::size_t j = places.nextLess(i, keys[i]); j != Places::kNowhere;
             j = places.nextLess(j, keys[i])) {
            places.set(j, keys[i]);
            std::swap(keys[i], keys[j]);
            std::swap(order[i], order[j]);
            ++made;
        }
    }
}

} // namespace

std::vector<std::size_t> gk_ExchangeOrder(const std::vector<double>& keys) {
    Order order(keys.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    const bool comparable = std::none_of(keys.begin(), keys.end(), [](double key) { return std::isnan(key); });
    if (comparable) {
        if (goesUp(keys)) return order;
        if (goesDown(keys)) return upwards(keys);
        Order distinct = ofDistinct(keys, order);
        if (!distinct.empty()) return distinct;
    }
    std::vector<double> moving(keys);
    exchange(moving, order);
    return order;
}

std::size_t gk_FirstByExchange(const std::vector<double>& keys) {
    std::size_t first = 0;
    for (std::size_t i = 1; i < keys.size(); ++i)
        if (keys[first] > keys[i]) first = i;
    return first;
}
