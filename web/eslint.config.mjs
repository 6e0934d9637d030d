import js from "@eslint/js";
import { defineConfig, globalIgnores } from "eslint/config";
import ts from "typescript-eslint";

export default defineConfig(globalIgnores(["node_modules/", "engine/"]), js.configs.recommended, {
  extends: [ts.configs.recommendedTypeChecked],
  files: ["**/*.ts"],
  languageOptions: { parserOptions: { projectService: true } },
  rules: {
    eqeqeq: "error",
    "prefer-const": "error",
    "@typescript-eslint/no-confusing-void-expression": "off",
    "@typescript-eslint/switch-exhaustiveness-check": "error",
  },
});
