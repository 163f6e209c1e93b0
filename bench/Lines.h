#pragma once

#include <charconv>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

/// splitmix64: the distributions of <random> differ between standard libraries.
class Dice
{
public:
    std::uint64_t below(std::uint64_t limit)
    {
        state_ += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
        return (mixed ^ (mixed >> 31)) % limit;
    }
    bool chance(std::uint64_t percent) { return below(100) < percent; }

private:
    std::uint64_t state_ = 20240229;
};

/// The lines of a file, with the numbers of recordings.
class Lines
{
public:
    explicit Lines(const char* path) : file_(path, std::ios::binary) {}

    Lines& operator<<(std::string_view text)
    {
        text_ += text;
        return *this;
    }
    Lines& operator<<(std::uint64_t number) { return append(number, 10); }
    Lines& handle(std::uint64_t value) { return append(value, 16); }

    /// A number with up to `decimals` decimals, in units of the last one.
    Lines& decimal(std::uint64_t units, int decimals)
    {
        std::uint64_t one = 1;
        for (int i = 0; i < decimals; ++i)
            one *= 10;
        *this << units / one;
        std::uint64_t fraction = units % one;
        if (fraction == 0)
            return *this;
        text_ += '.';
        for (one /= 10; fraction > 0; one /= 10) {
            text_ += static_cast<char>('0' + fraction / one);
            fraction %= one;
        }
        return *this;
    }

    void end()
    {
        text_ += '\n';
        if (text_.size() > 1 << 20)
            write();
    }
    bool finish()
    {
        write();
        file_.flush();
        return file_.good();
    }

private:
    Lines& append(std::uint64_t value, int base)
    {
        char digits[20];
        const char* const end = std::to_chars(std::begin(digits), std::end(digits), value, base).ptr;
        for (const char* digit = digits; digit != end; ++digit)
            text_ += *digit >= 'a' ? static_cast<char>(*digit - 'a' + 'A') : *digit;
        return *this;
    }
    void write()
    {
        file_.write(text_.data(), static_cast<std::streamsize>(text_.size()));
        text_.clear();
    }

    std::ofstream file_;
    std::string text_;
};
