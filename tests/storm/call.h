// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_STORM_CALL_H
#define TARN_STORM_CALL_H

#include "values.h"

#include <QMetaObject>
#include <QObject>
#include <QVector>
#include <functional>
#include <tuple>
#include <type_traits>

namespace Tarn::Storm {

/*! One public function of a class, with arguments from the dice. */
struct Call
{
    const QMetaObject *owner;
    const char *name;
    std::function<void(QObject *object, Source source)> run;
};

/*! Pointers that are returned are followed, so that it is found out when nothing is there. */
template <typename Result> void look([[maybe_unused]] const Result &result)
{
    if constexpr (std::is_convertible_v<Result, const QObject *>) {
        if (const QObject *object = result)
            object->objectName();
    }
}

template <typename Class, typename Result, typename Function, typename... Arguments>
Call makeCall(const char *name, Function function, std::tuple<Arguments...> *)
{
    return {&Class::staticMetaObject, name, [function](QObject *object, [[maybe_unused]] Source source) {
                // Braces, so that arguments are drawn in one order everywhere.
                std::tuple<std::decay_t<Arguments>...> drawn{draw<Arguments>(source)...};
                std::apply(
                    [&](auto &...arguments) {
                        auto *subject = static_cast<Class *>(object);
                        if constexpr (std::is_void_v<Result>)
                            (subject->*function)(arguments...);
                        else
                            look((subject->*function)(arguments...));
                    },
                    drawn);
            }};
}

template <typename Class, typename Base, typename Result, typename... Arguments>
Call call(const char *name, Result (Base::*function)(Arguments...))
{
    return makeCall<Class, Result>(name, function, static_cast<std::tuple<Arguments...> *>(nullptr));
}

template <typename Class, typename Base, typename Result, typename... Arguments>
Call call(const char *name, Result (Base::*function)(Arguments...) const)
{
    return makeCall<Class, Result>(name, function, static_cast<std::tuple<Arguments...> *>(nullptr));
}

/*! A call that needs more than drawn arguments. */
template <typename Class, typename Function> Call special(const char *name, Function function)
{
    return {&Class::staticMetaObject, name,
            [function](QObject *object, Source source) { function(static_cast<Class *>(object), source); }};
}

#define CALL(Class, function) call<Class>(#function, &Class::function)
#define CALL_OVERLOAD(Class, function, ...)                                                                  \
    call<Class>(#function "(" #__VA_ARGS__ ")", qOverload<__VA_ARGS__>(&Class::function))

QVector<Call> fileDialogCalls();

} // namespace Tarn::Storm

#endif
