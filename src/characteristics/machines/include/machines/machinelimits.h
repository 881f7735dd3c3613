#pragma once

#include <model/elementchange.h>
#include <model/netdata.h>

#include <machines/networkmachines.h>
#include <set>
#include <vector>

/// How near machines are to their limits, as properties of their elements: "surgemargin", "turndown", "chokemargin",
/// "speedreserve" and "powerreserve", described in the vocabulary of the network. Of a station with several machines they
/// are those of the machine that is nearest. What a file says under such a name stays.
class MachineLimits {
public:
  explicit MachineLimits(NetData &net)
      : m_net(net) {}

  /// Writes them, and takes out those written before that are no longer known. What has another value now is returned.
  std::vector<ElementChange> write(const std::vector<NetworkMachines::Nearness> &machines);
  /// Makes their names known to the network's vocabulary, where there are any.
  void describe();
  /// The network is another one.
  void forget() { m_written.clear(); }

private:
  NetData &m_net;
  std::set<std::pair<QString, std::size_t>> m_written; ///< name of the element, number of the property
};
