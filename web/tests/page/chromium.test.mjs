import { visits } from "./visits.mjs";

visits("chromium");
