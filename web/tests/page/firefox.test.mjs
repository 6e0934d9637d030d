import { visits } from "./visits.mjs";

visits("firefox");
