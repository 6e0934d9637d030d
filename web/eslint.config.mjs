import js from "@eslint/js";
import { defineConfig, globalIgnores } from "eslint/config";
import globals from "globals";
import ts from "typescript-eslint";

export default defineConfig(
  globalIgnores(["node_modules/", "engine/"]),
  js.configs.recommended,
  {
    extends: [ts.configs.recommendedTypeChecked],
    files: ["**/*.ts"],
    languageOptions: { parserOptions: { projectService: true } },
    rules: {
      eqeqeq: "error",
      "prefer-const": "error",
      "@typescript-eslint/no-confusing-void-expression": "off",
      "@typescript-eslint/switch-exhaustiveness-check": "error",
      // node:test awaits its tests itself.
      "@typescript-eslint/no-floating-promises": [
        "error",
        { allowForKnownSafeCalls: [{ from: "package", package: "node:test", name: "test" }] },
      ],
    },
  },
  {
    // Scripts of Node; those of the tests also have functions that run on the page.
    files: ["**/*.mjs"],
    languageOptions: { globals: { ...globals.node, ...globals.browser } },
  },
);
