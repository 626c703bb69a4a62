#pragma once

#include <QByteArray>
#include <QtGlobal>

/// Bytes of a growing text with numbers. Written for histograms of many million counts: space is
/// made in large steps, and numbers are written where they stay.
class TextWriter
{
public:
    void reserve(qint64 bytes);

    void text(const char* bytes, int count);
    void text(const char* ascii); ///< ends at the first NUL
    void text(const QByteArray& bytes);
    void character(char byte);

    /// Decimal digits.
    void integer(qint64 value);

    /// A double in as few digits as it takes to read the same double back, with a point in every
    /// locale; whole numbers below 10^15 without point and exponent. `notFinite` stands for what is
    /// no number: null takes "nan", "inf" and "-inf".
    void real(double value, const char* notFinite = nullptr);

    int size() const { return m_used; } ///< bytes written since the last take()

    /// What was written. The writer is empty afterwards.
    QByteArray take();

private:
    char* space(int count);

    QByteArray m_bytes; ///< as long as there is space
    int m_used = 0;
};
