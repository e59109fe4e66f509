// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "SBJson5/SBJson5StreamParserState.h"
#include "SBJson5/SBJson5StreamTokeniser.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <vector>

namespace quorvin {

class SBJson5StreamParserDelegate;

enum class SBJson5ParserStatus : unsigned char {
    Complete = 0,
    Stopped = 1,
    WaitingForData = 2,
    Error = 3, ///< the delegate has heard why; nothing further is parsed
};

/// Reads JSON in pieces of any size and tells its delegate what it finds. A document that is cut short just
/// waits. One thread an object.
class SBJson5StreamParser {
public:
    /// The delegate must outlive the parser. Containers that lie deeper than `mostDepth` are an error; 0
    /// stands for no limit: a container then takes a byte while it is open.
    explicit SBJson5StreamParser(SBJson5StreamParserDelegate &delegate, quint64 mostDepth = 0);

    SBJson5ParserStatus parse(QByteArrayView data);
    /// Ends the run of `parse` after the token at hand; later ones do nothing.
    void stop() { _stopped = true; }

private:
    using State = SBJson5StreamParserState;

    SBJson5ParserStatus statusAtEnd() const;
    void failWith(int code, const QString &text);
    void handleTokenNotExpectedHere(SBJson5Token token);
    void act(SBJson5Token token, QByteArrayView text);
    bool open(State inside);
    void transition(SBJson5Token token);
    void foundString(QByteArrayView text);

    SBJson5StreamParserDelegate &_delegate;
    quint64 _mostDepth;
    SBJson5StreamTokeniser _tokeniser;
    bool _stopped = false;
    State _state = State::Start;
    std::vector<State> _stateStack;
    QByteArray _decoded; ///< the string at hand, where it has escapes
};

} // namespace quorvin
