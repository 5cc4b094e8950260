// The interface records of the other computers' panels, as the broker brings them, against what the panel here was told
// of them. A record counts while its owner's panel is there. Over a loss of the connection the panel keeps what it
// knew; what has not shown up three seconds after the connection stands again is told as ended. What has, ends at once
// with its owner.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "platform/Event.h"
#include "platform/FrameworkLine.h"
#include "platform/Types.h"

namespace orvelle::mqtt {

enum class Missing { MayStillShowUp, CountsAsEnded };  // what the panel knows and nobody has said since

class HeardRecords {
public:
    // `isThere`: whether that computer's panel is.
    explicit HeardRecords(std::function<bool(int identity)> isThere) : ownerIsThere(std::move(isThere)) {}

    void Hear(Long id, const RecordContent& content);
    void HearEnded(Long id);
    void ForgetHeard();  // the connection is lost
    void ForgetAll();    // the panel knows of none any more
    void LookAtAll();    // owners may have come or gone

    // Tells the panel what differs from what it knows, of all that was heard or looked at since the last time.
    void Tell(Missing missing);
    // The record of a panel that is there for a type and role, of the lowest identity; 0 for none.
    Long Holder(const std::string& type, const std::string& role) const;

    Event<Long, const RecordContent&> Said;
    Event<Long> Ended;

private:
    const RecordContent* Find(Long id) const;  // null unless its owner is there
    void TellOf(Long id, Missing missing);

    std::function<bool(int)> ownerIsThere;
    std::map<Long, RecordContent> heard;  // on this connection
    std::map<Long, RecordContent> told;
    std::set<Long> shown;    // on this connection, of owners that were there
    std::set<Long> ended;    // by their owners' word
    std::set<Long> pending;  // to be looked at
};

}  // namespace orvelle::mqtt
