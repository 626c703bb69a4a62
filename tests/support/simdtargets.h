#pragma once

#include <hwy/targets.h>

#include <QtGlobal>

#include <utility>

/// Calls `check` once for each processor type that the vector loops were compiled for and that this
/// machine can run, the plain one included, with the loops bound to that type.
template <class Check>
void forEachSimdTarget(Check check)
{
    const auto bind = [](auto targets) {
        hwy::SetSupportedTargetsForTest(targets);
        hwy::GetChosenTarget().Update(hwy::SupportedTargets());
    };
    const auto all = hwy::SupportedTargets();
    for (auto rest = all; rest != 0; rest &= rest - 1) {
        const auto target = rest & -rest;
        bind(target);
        check(hwy::TargetName(target));
    }
    bind(decltype(all)(0)); // back to the best one
}
