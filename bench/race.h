// Several contestants at the same task, timed in turn.
#ifndef GK_BENCH_RACE_H
#define GK_BENCH_RACE_H

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace bench {

enum class Mode {
    eFresh,   // the first query on a new shape; building the shape is not counted, building an index is
    eRepeated // 10 000 queries on one shape, the index built once and counted
};

enum class Standing {
    eOurs,
    ePlain, // the definition, without any index
    ePeer,  // counts for the ratio
    eAside  // computes in single precision or another's definition: shown, does not count
};

// What one contestant needed.
struct Entry {
    std::string name;
    Standing standing;
    double ns = 0.0;          // per query, the least of all rounds; 0 when it did not run
    std::size_t queries = 0;  // fewer than asked when the time limit came first
    bool isCut = false;       // the time limit came first
    std::size_t agreeing = 0; // answers equal to ours
    std::size_t compared = 0;

    bool ran() const { return ns > 0.0; }
    bool isRefused = false; // it threw
    bool mayDiffer = false; // answers need not agree
    bool agrees() const { return mayDiffer || agreeing * 100 >= compared * 99; }
};

// One timed trial.
struct Trial {
    double ns = 0.0;     // per query
    double first = 0.0;  // seconds of the first query, with what had to be built for it
    double asking = 0.0; // seconds of all
    std::vector<double> answers;
    bool isCut = false;
};

class Stopwatch {
public:
    double seconds() const { return std::chrono::duration<double>(Clock::now() - begin_).count(); }

private:
    using Clock = std::chrono::steady_clock;

    Clock::time_point begin_ = Clock::now();
};

// Looks at the clock seldom as long as queries are quick.
class Deadline {
public:
    explicit Deadline(double limit) : limit_(limit) {}

    bool passedAfter(std::size_t queries) {
        if (!near_ && (queries & (queries - 1)) != 0) return false;
        const double now = watch_.seconds();
        near_ = now > limit_ / 64.0;
        return now > limit_;
    }
    double seconds() const { return watch_.seconds(); }

private:
    Stopwatch watch_;
    double limit_;
    bool near_ = false;
};

class Race {
public:
    struct Limits {
        double trial;  // seconds after which a trial asks no more
        double plain;  // the same for a plain definition, which has nothing to build and needs no long trial
        double rounds; // seconds for the whole race; everybody runs once in any case
    };

    Race(Mode mode, std::size_t vertices, const Limits& limits);

    Mode mode() const { return mode_; }
    // How many different queries a contestant must have ready.
    std::size_t queries() const;

    // Answers that differ by more than this share of the greater one disagree.
    void tolerance(double relative) { tolerance_ = relative; }

    // For operations that libraries define differently: every peer counts, whatever it answers.
    void answersMayDiffer() { mayDiffer_ = true; }
    // One query does this many things; figures are per thing. There is time for some rounds: in the first one,
    // whoever comes first gets pages that nobody has touched.
    void perItem(std::size_t items) {
        items_ = static_cast<double>(items);
        limits_.rounds = std::max(limits_.rounds, 4.0);
    }

    // make() gives a unique_ptr to a shape nobody has asked yet, prepare(shape) a pointer to what is asked,
    // plain or smart, and ask(prepared, k) the answer to query k.
    template <class Make, class Prepare, class Ask>
    void add(const std::string& name, Standing standing, Make make, Prepare prepare, Ask ask) {
        const double limit = standing == Standing::ePlain ? limits_.plain : limits_.trial;
        const std::size_t count = queries();
        const bool isFresh = mode_ == Mode::eFresh;
        contestants_.push_back({{name, standing}, [=] {
                                    return isFresh ? fresh(make, prepare, ask, count, limit)
                                                   : repeated(make, prepare, ask, count, limit);
                                }});
    }
    // Without an index to prepare.
    template <class Make, class Ask> void add(const std::string& name, Standing standing, Make make, Ask ask) {
        add(
            name, standing, make, [](auto& shape) { return &shape; }, ask);
    }

    // Whether a contestant may start; one expected to need too long does not.
    using Gate = std::function<bool(const std::string& contestant)>;
    std::vector<Entry> run(const Gate& gate);

private:
    struct Contestant {
        Entry entry;
        std::function<Trial()> trial;
    };

    template <class Make, class Prepare, class Ask>
    static Trial fresh(Make make, Prepare prepare, Ask ask, std::size_t count, double limit) {
        std::vector<decltype(make())> shapes;
        std::vector<decltype(prepare(*shapes[0]))> prepared;
        for (std::size_t k = 0; k < count; ++k) shapes.push_back(make());
        prepared.reserve(count);
        return timed(count, limit, [&](std::size_t k) {
            prepared.push_back(prepare(*shapes[k]));
            return static_cast<double>(ask(*prepared.back(), k));
        });
    }

    template <class Make, class Prepare, class Ask>
    static Trial repeated(Make make, Prepare prepare, Ask ask, std::size_t count, double limit) {
        const auto shape = make();
        decltype(prepare(*shape)) prepared;
        return timed(count, limit, [&](std::size_t k) {
            if (k == 0) prepared = prepare(*shape);
            return static_cast<double>(ask(*prepared, k));
        });
    }

    template <class Query> static Trial timed(std::size_t count, double limit, Query query) {
        Trial trial;
        trial.answers.reserve(count);
        Deadline deadline(limit);
        for (std::size_t k = 0; k < count && !trial.isCut; ++k) {
            trial.answers.push_back(query(k));
            trial.isCut = deadline.passedAfter(k + 1) && k + 1 < count;
            if (k == 0) trial.first = deadline.seconds();
        }
        trial.asking = deadline.seconds();
        trial.ns = trial.asking * 1e9 / static_cast<double>(trial.answers.size());
        return trial;
    }

    // One trial and what it tells; false when the contestant need not run again.
    bool runOnce(Contestant& contestant, std::vector<double>& answers) const;
    void compare(std::vector<std::vector<double>>& answers);

    Mode mode_;
    std::size_t vertices_;
    Limits limits_;
    double tolerance_ = 1e-9;
    bool mayDiffer_ = false;
    double items_ = 1.0;
    std::vector<Contestant> contestants_;
};

} // namespace bench

#endif
