#include "lesson/marking/marks.hpp"

#include "lesson/text/quotable.hpp"

namespace lesson
{

Mark markOf(Verdict verdict, Sentence says)
{
    return markOf(verdict, say(says));
}

Mark markOf(Verdict verdict, const Span& says)
{
    return {verdict, {says}};
}

Mark unreadable(std::string_view part, Sentence whatToType)
{
    return {Verdict::unreadable,
            line(say<Sentence::markUnread>(quotable(part)), " ", say(whatToType))};
}

Sentence sentenceOf(Mixup mixup)
{
    switch (mixup) {
    case Mixup::largeIForSmallL:
        return Sentence::markLargeIForSmallL;
    case Mixup::oneForSmallL:
        return Sentence::markOneForSmallL;
    case Mixup::zeroForLargeO:
        return Sentence::markZeroForLargeO;
    case Mixup::smallLForLargeI:
        break;
    }
    return Sentence::markSmallLForLargeI;
}

} // namespace lesson
