// SPDX-License-Identifier: Apache-2.0
// A moment broken down into calendar fields of the local time zone.
#pragma once

#include <cstdint>
#include <ctime>

class VEXTime
{
public:
    /// @param seconds  seconds since 1970-01-01 00:00:00 UTC. A moment that the calendar cannot
    /// hold gives zero fields.
    explicit VEXTime(std::int64_t seconds)
    {
        const std::time_t moment = static_cast<std::time_t>(seconds);
        std::tm fields{};
        if (localtime_r(&moment, &fields) != nullptr) {
            _fields = fields;
            _year = fields.tm_year + 1900;
            _month = fields.tm_mon + 1;
        }
    }

    int GetYear() const noexcept { return _year; }             ///< for example 2008
    int GetMonth() const noexcept { return _month; }           ///< 1 to 12
    int GetDay() const noexcept { return _fields.tm_mday; }    ///< 1 to 31
    int GetHour() const noexcept { return _fields.tm_hour; }   ///< 0 to 23
    int GetMinute() const noexcept { return _fields.tm_min; }  ///< 0 to 59
    int GetSecond() const noexcept { return _fields.tm_sec; }  ///< 0 to 60

private:
    std::tm _fields{};
    int _year = 0;
    int _month = 0;
};
