"""Makes the example network DE_H2."""
