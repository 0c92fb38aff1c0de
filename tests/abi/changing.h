// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// A library that is built as it was and with one change each, to show that the comparison with a baseline
// finds them.

#ifndef TARN_CHANGING_H
#define TARN_CHANGING_H

#include <QtGlobal>

namespace Tarn::Changing {

enum Level : int {
    Low,
#ifdef ENUMERATOR_INSERTED
    Middle,
#endif
    High,
#ifdef ENUMERATOR_APPENDED
    Highest,
#endif
};

#ifdef RESULT_CHANGED
using Value = long;
#else
using Value = int;
#endif

class Q_DECL_EXPORT Gauge
{
public:
    explicit Gauge(Level level);
    virtual ~Gauge();

    Value value() const;

#ifdef VIRTUAL_FUNCTION_INSERTED
    virtual void prepare();
#endif
    virtual void show();

#ifndef FUNCTION_REMOVED
    void clear();
#endif
#ifdef FUNCTION_ADDED
    void fill();
#endif

    Level m_level;
#ifdef MEMBER_ADDED
    void *m_more = nullptr;
#endif
};

} // namespace Tarn::Changing

#endif
