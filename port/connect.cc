// SPDX-License-Identifier: MIT
#include "port/connect.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>

#include "gil/tokens.h"
#include "port/functions.h"
#include "port/port_events.h"
#include "port/targets.h"
#include "widget/tree.h"

namespace port {
namespace {

void Plan(Session& session, int connection) {
  std::string& reason = session.reasons[connection];
  const Connection& planned = session.model.connections[connection];
  if (!CallsFunction(planned)) {
    reason = WhyNotPredefined(session, planned);
    if (!reason.empty()) return;
  }
  for (PlannedSource& source : FindSources(session, connection, &reason)) {
    session.sources.push_back(std::move(source));
  }
}

using Event = std::pair<const Widg*, std::string>;

// The calls of the module run before those of connections.c. Calls that would run too early move to
// connections.c.
void KeepOrder(Session& session) {
  const auto is_before = [&](int a, int b) {
    return session.model.connections[a].IsBefore(session.model.connections[b]);
  };
  std::map<Event, int> first_planned;
  for (const PlannedSource& source : session.sources) {
    const auto [at, fresh] =
        first_planned.emplace(Event{source.widg, source.event}, source.connection);
    if (!fresh && is_before(source.connection, at->second)) at->second = source.connection;
  }
  const auto is_early = [&](const Link& link) {
    const auto found = first_planned.find({link.widg, link.callback->callback_name});
    return found != first_planned.end() && is_before(found->second, link.connection);
  };
  for (const Link& link : session.links) {
    if (is_early(link)) session.left_out.insert(link.callback);
  }
  std::vector<Link> kept;
  for (const Link& link : session.links) {
    if (!session.left_out.contains(link.callback)) {
      kept.push_back(link);
    } else {
      session.sources.push_back(
          {link.connection, link.widg, link.callback->callback_name, std::string()});
    }
  }
  session.links = std::move(kept);
  std::stable_sort(session.sources.begin(), session.sources.end(),
                   [&](const PlannedSource& a, const PlannedSource& b) {
                     return is_before(a.connection, b.connection);
                   });
}

// Calls of the module for what has no widget would do nothing. They leave it, and are lost.
void LeaveOutDeadCalls(Session& session) {
  const auto is_dead = [&](const Link& link) {
    const Connection& connection = session.model.connections[link.connection];
    return !CallsFunction(connection) && !WhyNotPredefined(session, connection).empty();
  };
  for (const Link& link : session.links) {
    if (is_dead(link)) session.left_out.insert(link.callback);
  }
  std::erase_if(session.links, is_dead);
}

void SettleCall(const Session& session, Connection& connection) {
  if (!connection.function.empty()) {
    connection.call = connection.function + "()";
    return;
  }
  const Call call = PredefinedCall(session, connection);
  connection.call = call.Text();
  connection.procedure = call.procedure;
  connection.procedure_widget = call.widget;
  connection.argument = call.widget.empty() ? call.argument : call.text;
}

void Settle(Session& session, int index) {
  Connection& connection = session.model.connections[index];
  for (const Link& link : session.links) {
    if (link.connection != index) continue;
    connection.in_module = true;
    connection.sources.push_back({NameOf(session, link.widg), link.callback->callback_name, ""});
  }
  for (const PlannedSource& source : session.sources) {
    if (source.connection != index) continue;
    connection.sources.push_back({NameOf(session, source.widg), source.event, source.condition});
  }
  if (connection.sources.empty()) {
    connection.fate = ConnectionFate::kLost;
    connection.reason = session.reasons[index];
    if (!connection.function.empty()) {
      connection.reason += "; " + connection.function + " waits in callbacks.c to be called";
    }
    return;
  }
  SettleCall(session, connection);
  connection.fate = !connection.function.empty() ? ConnectionFate::kFunction
                    : connection.in_module       ? ConnectionFate::kModule
                                                 : ConnectionFate::kConnections;
}

}  // namespace

void Connect(Session& session) {
  session.reasons.assign(session.model.connections.size(), "");
  LeaveOutDeadCalls(session);
  std::set<int> in_module;
  for (const Link& link : session.links) in_module.insert(link.connection);
  for (std::size_t i = 0; i < session.model.connections.size(); ++i) {
    if (!in_module.contains(static_cast<int>(i))) Plan(session, static_cast<int>(i));
  }
  KeepOrder(session);
}

void SettleConnections(Session& session) {
  NameFunctions(session);
  for (std::size_t i = 0; i < session.model.connections.size(); ++i) {
    Settle(session, static_cast<int>(i));
  }
}

}  // namespace port
