#pragma once

#include "play/Action.h"

#include <rapidcheck.h>

namespace veyrand::play {

inline rc::Gen<std::string> anyChips()
{
    return rc::gen::nonEmpty(rc::gen::container<std::string>(rc::gen::element('Y', 'R', 'G', 'B')));
}

inline rc::Gen<Puzzle> anyPuzzle()
{
    const auto classic = rc::gen::build<Puzzle>(
        rc::gen::set(&Puzzle::place,
            rc::gen::build<progress::Place>(
                rc::gen::set(&progress::Place::level), rc::gen::set(&progress::Place::stage))),
        rc::gen::set(&Puzzle::root, anyChips()), rc::gen::set(&Puzzle::goal, anyChips()),
        rc::gen::set(&Puzzle::par), rc::gen::set(&Puzzle::saved), rc::gen::set(&Puzzle::spent));
    const auto endless = rc::gen::build<Puzzle>(
        rc::gen::set(&Puzzle::mode, rc::gen::just(progress::Mode::Endless)),
        rc::gen::set(&Puzzle::root, anyChips()), rc::gen::set(&Puzzle::goal, anyChips()),
        rc::gen::set(&Puzzle::par), rc::gen::set(&Puzzle::saved), rc::gen::set(&Puzzle::spent));
    return rc::gen::oneOf(classic, endless);
}

inline rc::Gen<Move> anyMove()
{
    return rc::gen::build<Move>(rc::gen::set(&Move::rule), rc::gen::set(&Move::match));
}

inline rc::Gen<Hint> anyHint()
{
    const auto ofKind = [](Hint::Kind kind) { return Hint { kind, 0, {} }; };
    return rc::gen::oneOf(
        rc::gen::map(
            rc::gen::element(Hint::Kind::Good, Hint::Kind::Pieces, Hint::Kind::Nothing), ofKind),
        rc::gen::map(rc::gen::arbitrary<unsigned>(),
            [](unsigned left) {
                return Hint { Hint::Kind::Back, left, {} };
            }),
        rc::gen::map(anyMove(), [](Move move) {
            return Hint { Hint::Kind::Line, 0, move };
        }));
}

template <class Kind> rc::Gen<Action> asAction(rc::Gen<Kind> kind)
{
    return rc::gen::map(std::move(kind), [](Kind value) { return Action(std::move(value)); });
}

inline rc::Gen<Action> anyAction()
{
    return rc::gen::oneOf(asAction(anyPuzzle()), asAction(anyMove()), asAction(anyHint()),
        asAction(rc::gen::build<Remove>(rc::gen::set(&Remove::row))),
        asAction(rc::gen::just(Undo {})), asAction(rc::gen::just(Redo {})),
        asAction(rc::gen::build<Leave>(rc::gen::set(&Leave::par))));
}

} // namespace veyrand::play
