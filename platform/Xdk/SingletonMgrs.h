// The managers of which the process has one: queueing, shaping, policing, and access control at the
// egress.  `instance()` gives the one and is never null.
#pragma once

#include "Xdk/SingletonMgr.h"

class xpAqmMgr : public xpDeInitMgr {
 public:
  static xpAqmMgr* instance();
};

class xpLanzMgr : public xpDeInitMgr {
 public:
  static xpLanzMgr* instance();
};

class xpQueueCounterMgr : public xpSingletonMgr {
 public:
  static xpQueueCounterMgr* instance();
};

class xpPortIngressQosMgr : public xpSingletonMgr {
 public:
  static xpPortIngressQosMgr* instance();
};

class xpSchedulerMgr : public xpSingletonMgr {
 public:
  static xpSchedulerMgr* instance();
};

class xpShaperMgr : public xpSingletonMgr {
 public:
  static xpShaperMgr* instance();
};

class xpCpuStormControlMgr : public xpSingletonMgr {
 public:
  static xpCpuStormControlMgr* instance();
};

class xpEgressQosMapMgr : public xpDeInitMgr {
 public:
  static xpEgressQosMapMgr* instance();
};

class xpPolicerMgr : public xpDeInitMgr {
 public:
  static xpPolicerMgr* instance();
};

class xpControlPlanePolicingMgr : public xpDeInitMgr {
 public:
  static xpControlPlanePolicingMgr* instance();
};

class xpFlowControlMgr : public xpDeInitMgr {
 public:
  static xpFlowControlMgr* instance();
};

class xpEgressAclMgr : public xpSingletonMgr {
 public:
  static xpEgressAclMgr* instance();
};
