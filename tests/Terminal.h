#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QRegularExpression>
#include <QString>

#include <array>
#include <cstdlib>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

/// A terminal that takes what a program says on standard error.
class Terminal
{
public:
    Terminal() : descriptor_(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        EXPECT_EQ(grantpt(descriptor_), 0);
        EXPECT_EQ(unlockpt(descriptor_), 0);
        path_ = QString::fromLocal8Bit(ptsname(descriptor_));
        // As long as somebody has it open, nothing that comes is lost.
        keptOpen_ = open(qPrintable(path_), O_RDWR | O_NOCTTY | O_CLOEXEC);
    }
    ~Terminal()
    {
        close(keptOpen_);
        close(descriptor_);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    /// What a shell does to put standard error there.
    QString asErrors() const { return "exec 2>" + path_ + "; "; }

    /// All that has come so far.
    const QByteArray& text()
    {
        while (takeWithin(0)) {
        }
        return text_;
    }

    /// The same without what was drawn on a line before it was begun anew.
    QByteArray lastingText()
    {
        static const QRegularExpression overwritten("\\r[^\\r\\n]*(?=\\r(?!\\n))|\\r(?!\\n)");
        return QString::fromUtf8(text()).remove(overwritten).toUtf8();
    }

    /// Waits until this has come.
    void await(const QByteArray& part)
    {
        while (!text_.contains(part))
            ASSERT_TRUE(takeWithin(60'000)) << part.toStdString() << " does not come, but " << text_.toStdString();
    }

private:
    bool takeWithin(int milliseconds)
    {
        pollfd ready{descriptor_, POLLIN, 0};
        if (poll(&ready, 1, milliseconds) <= 0)
            return false;
        std::array<char, 4096> piece;
        const ssize_t got = read(descriptor_, piece.data(), piece.size());
        if (got > 0)
            text_.append(piece.data(), static_cast<int>(got));
        return got > 0;
    }

    int descriptor_;
    int keptOpen_ = -1;
    QString path_;
    QByteArray text_;
};
