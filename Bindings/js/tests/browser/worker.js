import { load } from "/package/src/index.js";
import { workload } from "/tests/workload.js";

postMessage(workload(await load()));
